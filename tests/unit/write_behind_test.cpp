// Long macros, whose text a second thread writes.

#include "TestStream.h"
#include "TestTarget.h"
#include "module/MacroFile.h"

#include <QTextStream>

#include <stdexcept>

using namespace inkmacro;

namespace {

constexpr int kStatements = 40000; ///< several batches

const Fault fault{"EmitTest", {Target::CSharp}, "a test"};

struct Written
{
    QByteArray text;
    std::vector<CFxFaultNote> faults;
};

/// Statements that are at fault by a note or by their locals, a declaration, texts that are made late, and lines that
/// several statements share.
Written write()
{
    TestStream to;
    MacroFile macro(to.stream, "test.cs", Target::CSharp, false, true);
    for (int i = 0; i < kStatements; ++i) {
        macro.writeDeclarations(QString("Line line%1;\n").arg(i));
        macro.write(QString("line%1 = f( \u00E4 );").arg(i));
        macro.write(QString("\n"));
        if (i % 1000 == 7) {
            Statement statement(QString("g();\n"));
            statement.addFault(fault);
            macro.write(statement);
        }
        if (i % 1000 == 8)
            macro.write(QString("int twice;\n"));
        if (i % 1000 == 9)
            macro.write(QString("h( ") +
                        Statement([](std::size_t part) { return part < 3 ? QString(50000, 'x') + '\n' : QString(); }) +
                        QString(" );\n"));
    }
    macro.finish();
    to.stream.flush();
    Written written{to.buffer.data(), GetFxSystemServices()->Notes().GetFaults()};
    GetFxSystemServices()->Notes().Forget();
    return written;
}

/// Takes a megabyte, and then throws once.
class SmallDevice final : public QIODevice
{
public:
    SmallDevice() { open(WriteOnly); }

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char*, qint64 size) override
    {
        taken_ += size;
        if (taken_ > 1'000'000 && !std::exchange(thrown_, true))
            throw std::runtime_error("full");
        return size;
    }

private:
    qint64 taken_ = 0;
    bool thrown_ = false;
};

} // namespace

TEST(MacroFile, WritesAndNotesInTheOrderOfTheMacro)
{
    const Written written = write();
    const QList<QByteArray> lines = written.text.split('\n');
    ASSERT_EQ(written.faults.size(), 2);
    EXPECT_EQ(written.faults[0].lines.size(), 40);
    EXPECT_EQ(written.faults[0].lines[0], 2 * 8 + 1);
    EXPECT_EQ(written.faults[0].lines[1], 2 * 1008 + 1 + 1 + 4 + 1);
    EXPECT_EQ(written.faults[1].lines.size(), 39);
    for (const auto& [note, words] : {std::pair(written.faults[0], "g();"), {written.faults[1], "int twice;"}})
        for (const std::uint32_t line : note.lines)
            EXPECT_EQ(lines[static_cast<int>(line) - 1], words) << line;
    EXPECT_EQ(lines.size(), 2 * kStatements + 40 + 40 + 40 * 4 + 1);
    EXPECT_TRUE(written.text.endsWith("Line line39999;\nline39999 = f( \xC3\xA4 );\n"));
}

TEST(WriteBehind, TellsOfWhatIsThrownAndEndsWithoutBeingFinished)
{
    for (const bool finishes : {true, false}) {
        MacroText text(Target::CSharp, false, false, false, {});
        SmallDevice device;
        QTextStream stream(&device);
        const QString line = QString(99, 'x') + '\n';
        const auto writeAll = [&] {
            WriteBehind behind(text, stream);
            for (int i = 0; i < (finishes ? 10'500 : kStatements); ++i)
                behind.write(MacroText::Kind::Statements, line);
            if (finishes)
                behind.finish();
        };
        EXPECT_THROW(writeAll(), std::runtime_error);
    }
}

TEST(MacroFile, TellsOfWhichActionLinesAre)
{
    CFxConversionNotes& notes = GetFxSystemServices()->Notes();
    QStringList told;
    notes.OnLines([&told](const CFxMacroLines& lines) {
        QStringList words{QString::number(static_cast<int>(lines.part)),
                          QString("%1-%2").arg(lines.first).arg(lines.last)};
        for (const std::uint32_t number : lines.where)
            words.append(QString::number(number));
        told.append(words.join(' '));
    });
    for (const bool repairs : {false, true}) {
        told.clear();
        TestStream to;
        MacroFile macro(to.stream, "test.cs", Target::CSharp, repairs, false);
        macro.writeFrame(QString("head\n"));
        macro.beginAction(4);
        macro.begin(CFxMacroPart::kStatements, 0);
        macro.write(QString("a();\nb("));
        // Two that have no more than a part of a line.
        macro.begin(CFxMacroPart::kStatements, 1);
        macro.write(QString(" c"));
        macro.begin(CFxMacroPart::kStatements, 2);
        macro.write(QString(" );\n"));
        // Blanks alone do not make the next line one's own.
        macro.begin(CFxMacroPart::kStatements, 3);
        macro.write(QString("d();\n    "));
        macro.begin(CFxMacroPart::kDeclaration, 5);
        macro.writeDeclarations(QString("Line e;\n"));
        macro.begin(CFxMacroPart::kBlock);
        macro.write(QString());
        macro.writeFrame(QString("foot"));
        macro.finish();
        const QStringList expected{"0 1-1", "3 2-3 4 0", "3 4-4 4 3", "2 5-5 4 5", "0 6-6"};
        EXPECT_EQ(told.join('\n').toStdString(), expected.join('\n').toStdString()) << repairs;
    }
    notes.OnLines({});
}
