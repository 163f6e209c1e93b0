// Long macros, whose text a second thread writes.

#include "TestTarget.h"
#include "module/WriteBehind.h"

#include <QBuffer>
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
    bool operator==(const Written&) const = default;
};

/// Statements that are at fault by a mark or by their locals, a declaration, texts that are kept for later, and lines
/// that several statements share.
Written write(bool behind)
{
    CFxConversionNotes& notes = GetFxSystemServices()->Notes();
    notes.Forget();
    TestTarget made(Target::CSharp);
    Writer& writer = made.writer;
    writer.noteFaults();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QTextStream stream(&buffer);
    stream.setCodec("UTF-8");
    {
        std::optional<Writer::Background> background;
        if (behind)
            background.emplace(writer, stream);
        for (int i = 0; i < kStatements; ++i) {
            writer.forgetLater();
            writer.writeDeclarations(stream, QString("Line line%1;\n").arg(i));
            writer.write(stream, QString("line%1 = f( \u00E4 );").arg(i));
            writer.write(stream, "\n");
            if (i % 1000 == 7)
                writer.write(stream, writer.faulty("g();\n", fault));
            if (i % 1000 == 8)
                writer.write(stream, "int twice;\n");
            if (i % 1000 == 9)
                writer.write(stream, "h( " + writer.later([](std::size_t part) {
                    return part < 3 ? QString(50000, 'x') + '\n' : QString();
                }) + " );\n");
        }
        writer.finish(stream);
    }
    stream.flush();
    Written written{buffer.data(), notes.GetFaults()};
    notes.Forget();
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

TEST(WriteBehind, WritesAndNotesWhatIsWrittenAtOnce)
{
    const Written atOnce = write(false);
    EXPECT_EQ(atOnce.faults.size(), 40 + 39);
    EXPECT_EQ(atOnce.faults[0].line, 2 * 8 + 1);
    EXPECT_EQ(atOnce.faults[1].line, 2 * 1008 + 1 + 1 + 4 + 1);
    EXPECT_TRUE(atOnce.text.endsWith("Line line39999;\nline39999 = f( \xC3\xA4 );\n"));
    EXPECT_TRUE(write(true) == atOnce);
}

TEST(WriteBehind, TellsOfWhatIsThrownAndEndsWithoutBeingFinished)
{
    for (const bool finishes : {true, false}) {
        MacroText text(Target::CSharp, false);
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
