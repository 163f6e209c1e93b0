#include "targets/Writer.h"

#include "frame/RecordingState.h"
#include "host/kernel/CFxServices.h"
#include "targets/LineEnd.h"
#include "targets/Marks.h"
#include "targets/quoting.h"

#include <QTextStream>

#include <algorithm>
#include <utility>

using namespace inkmacro;

namespace {

/// The stream makes copies of all that it is given at once.
void writeSliced(QTextStream& stream, QStringView text)
{
    constexpr qsizetype slice = 64 * 1024;
    while (!text.isEmpty()) {
        qsizetype length = std::min(slice, text.size());
        if (length < text.size() && text[length].isLowSurrogate())
            ++length;
        stream << text.left(length);
        text = text.mid(length);
    }
}

constexpr int kLineHead = 1024;

/// Calls for each line that is whole, with what had begun before.
template<class Use>
void forLines(QString& begun, QStringView text, const Use& use)
{
    for (auto end = text.indexOf(QChar('\n')); end != -1; end = text.indexOf(QChar('\n'))) {
        if (begun.isEmpty()) {
            use(text.left(end));
        } else {
            use(QStringView(begun += text.left(end)));
            begun.clear();
        }
        text = text.mid(end + 1);
    }
    begun += text;
}

/// Arrays without elements have an index below zero, which VBA does not take; without a size it does.
bool sizesNothing(QStringView line, Target target)
{
    return target == Target::Vba && line.trimmed().startsWith(u"Dim ") &&
           (line.contains(u"(-1)") || line.contains(u"( -1 )"));
}

const Fault kDeclaredTwice{"ConvertCommand",
                           {Target::Cpp, Target::CppCom, Target::CSharp, Target::VbNet, Target::Vba},
                           "a local variable is declared where one of its name is seen already"};

const Fault kEmptyArray{"ConvertCommand", {Target::Vba}, "an array without elements is declared with a size of -1"};

} // namespace

Writer::Writer(Target target) : target(target), repairs(RepairsMacros()), locals_(target)
{
}

FillMode Writer::mode() const
{
    return {target, repairs, notesFaults_ ? &marked_ : nullptr};
}

Fill Writer::fillPlain(const Phrase& phrase) const
{
    const Mend* const mend = phrase.mend(target);
    if (!mend)
        return Fill(phrase.in(target)).with(mode());
    return repairs ? Fill(mend->words()).with(mode()) : Fill(phrase.in(target)).with(mode(), mend);
}

Fill Writer::fill(const Phrase& phrase) const
{
    Fill statement = fillPlain(phrase);
    statement.indent(IndentLevel).text(LineEnd);
    return statement;
}

Fill Writer::fillIndented(const Phrase& phrase) const
{
    Fill statement = fillPlain(phrase);
    statement.indent(IndentLevel);
    return statement;
}

QString Writer::indentation() const
{
    return QString(Fill::indentationWidth(IndentLevel), ' ');
}

QString Writer::quoted(const QString& text) const
{
    if (!repairs)
        return breaksQuotes(text, target) ? faulty(text, brokenQuotes) : text;
    QString escaped;
    appendQuoted(escaped, text, target);
    return escaped;
}

QString Writer::faulty(QString statement, const Fault& fault) const
{
    if (notesFaults_ && !repairs && !statement.isEmpty()) {
        insertMark(statement, {Mark::Kind::Fault, fault.number()});
        marked_ = true;
    }
    return statement;
}

QString Writer::later(Parts parts)
{
    later_.push_back(std::move(parts));
    marked_ = true;
    return Mark{Mark::Kind::Later, later_.size() - 1}.text();
}

void Writer::writeText(QTextStream& stream, QStringView text)
{
    if (repairs)
        return writeLines(stream, text);
    if (notesFaults_)
        followLines(text);
    writeSliced(stream, text);
}

void Writer::followLines(QStringView text)
{
    forLines(begun_, text, [this](QStringView line) {
        if (locals_.declaresTwice(line))
            noteFault(kDeclaredTwice);
        if (sizesNothing(line, target))
            noteFault(kEmptyArray);
        ++line_;
    });
    // A declaration stands at the beginning of its line, which may be long in all.
    begun_.truncate(kLineHead);
}

void Writer::writeLines(QTextStream& stream, QStringView text)
{
    forLines(begun_, text, [&](QStringView line) {
        QString text = locals_.toldApart(line.toString());
        if (sizesNothing(text, target))
            text.remove(QLatin1String("-1")).replace(QLatin1String("(  )"), QLatin1String("()"));
        writeSliced(stream, text);
        stream << '\n';
        ++line_;
    });
}

void Writer::writeDeclarations(QTextStream& stream, const QString& declarations)
{
    if (repairs || Mark::find(declarations, 0))
        return write(stream, declarations);
    line_ += static_cast<std::size_t>(std::count(declarations.begin(), declarations.end(), QChar('\n')));
    stream << declarations;
}

void Writer::finish(QTextStream& stream)
{
    if (repairs)
        writeSliced(stream, std::exchange(begun_, QString()));
}

void Writer::write(QTextStream& stream, const QString& statements)
{
    const QStringView text(statements);
    qsizetype from = 0;
    auto found = marked_ ? Mark::find(text, 0) : std::nullopt;
    for (; found; found = Mark::find(text, from)) {
        writeText(stream, text.mid(from, found->at - from));
        from = found->at + Mark::length;
        if (found->mark.kind == Mark::Kind::Fault) {
            noteFault(*Fault::all().at(found->mark.number));
            continue;
        }
        const Parts& parts = later_.at(found->mark.number);
        QString part = parts(0);
        for (std::size_t number = 1; !part.isEmpty(); ++number) {
            writeText(stream, part);
            part = parts(number);
        }
    }
    writeText(stream, text.mid(from));
}

void Writer::noteFault(const Fault& fault) const
{
    GetFxSystemServices()->Notes().NoteFault([&] {
        return CFxFaultNote{fault.operation(), fault.reason(), file, static_cast<std::uint32_t>(line_), fault.mended()};
    });
}
