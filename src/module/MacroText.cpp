#include "module/MacroText.h"

#include "module/codeNames.h"

#include <QTextStream>

#include <algorithm>
#include <utility>

namespace inkmacro {

namespace {

void writeSliced(QTextStream& stream, QStringView text)
{
    forSlices(text, 64 * 1024, [&stream](QStringView slice) { stream << slice; });
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

const Fault kTooLong{"ConvertRecording", {Target::Vba}, "the procedure is longer than VBA compiles"};

const Fault kTooManyVariables{
    "ConvertRecording", {Target::JavaScript}, "the function has more variables than browsers have room for"};

/// Letters that a procedure of VBA may have for certain: it takes 64 KB of compiled code, and that of a line is hardly
/// longer than the line.
constexpr qsizetype kMostLetters = 64 * 1024;

/// Each takes 8 bytes of the 984 KB that browsers and node have for calls: they refuse 120,000. What is left is for the
/// library that the page calls.
constexpr int kMostVariables = 100'000;

} // namespace

void MacroText::Found::add(const Found& other)
{
    faults.insert(faults.end(), other.faults.begin(), other.faults.end());
    for (const auto& [origin, count] : other.lines)
        addLines(lines, origin, count);
}

MacroText::MacroText(Target target, bool repairs, bool notesFaults, bool notesLines, const QString& folder)
    // Python has no declarations, so nothing to tell apart.
    : target_(target),
      repairs_(repairs && target != Target::Python),
      notesFaults_(notesFaults),
      notesLines_(notesLines),
      locals_(target)
{
    if (divides(target, repairs))
        procedures_.emplace(target, folder);
}

void MacroText::write(QTextStream& stream, Kind kind, QStringView text)
{
    if (repairs_)
        return writeLines(stream, kind, text);
    if (notesLines_ || (notesFaults_ && kind != Kind::Declarations))
        followLines(kind, text);
    else if (kind == Kind::Declarations)
        line_ += static_cast<std::size_t>(std::count(text.begin(), text.end(), QChar('\n')));
    noteLength(text.size());
    writeSliced(stream, text);
}

void MacroText::begin(const Origin& origin)
{
    if (!begunOrigin_ && !trimmed(begun_).isEmpty())
        begunOrigin_ = origin_;
    origin_ = origin;
}

Origin MacroText::takeOrigin()
{
    return std::exchange(begunOrigin_, std::nullopt).value_or(origin_);
}

void MacroText::endLine()
{
    ++line_;
    if (notesLines_ && !procedures_)
        addLines(found_.lines, takeOrigin());
}

void MacroText::followLines(Kind kind, QStringView text)
{
    forLines(begun_, text, [this, kind](QStringView line) {
        if (notesFaults_ && kind != Kind::Declarations)
            findFaults(kind, line);
        endLine();
    });
    // A declaration stands at the beginning of its line, which may be long in all.
    begun_.truncate(kLineHead);
}

void MacroText::findFaults(Kind kind, QStringView line)
{
    if (const std::size_t number = locals_.declaresTwice(line, line_))
        found_.faults.push_back({&kDeclaredTwice, number});
    if (sizesNothing(line, target_))
        noteFault(kEmptyArray);
    if (kind == Kind::Frame && !line.isEmpty() && line == mainLine(target_))
        mainLine_ = line_;
    if (target_ == Target::JavaScript && mainLine_ > 0)
        noteVariables(line);
}

void MacroText::noteLength(qsizetype letters)
{
    letters_ += letters;
    if (target_ == Target::Vba && mainLine_ > 0 && letters_ > kMostLetters)
        found_.faults.push_back({&kTooLong, std::exchange(mainLine_, 0)});
}

void MacroText::noteVariables(QStringView line)
{
    forScriptVariables(line, [this](QStringView name) { variables_.insert(name.toString()); });
    if (variables_.size() <= kMostVariables)
        return;
    found_.faults.push_back({&kTooManyVariables, std::exchange(mainLine_, 0)});
    variables_ = {};
}

void MacroText::writeLines(QTextStream& stream, Kind kind, QStringView text)
{
    forLines(begun_, text, [&](QStringView line) {
        QString text = locals_.toldApart(line.toString());
        if (sizesNothing(text, target_))
            text.remove(QLatin1String("-1")).replace(QLatin1String("(  )"), QLatin1String("()"));
        if (!procedures_) {
            writeSliced(stream, text);
            stream << '\n';
        } else if (kind == Kind::Frame) {
            procedures_->frameLine(text);
        } else {
            procedures_->line(text, takeOrigin());
        }
        endLine();
    });
}

void MacroText::finish(QTextStream& stream, const OriginSink& lines)
{
    if (procedures_)
        procedures_->finish(stream, lines);
    else if (notesLines_ && !begun_.isEmpty())
        addLines(found_.lines, takeOrigin());
    if (repairs_)
        writeSliced(stream, std::exchange(begun_, QString()));
}

MacroText::Found MacroText::take()
{
    return std::exchange(found_, {});
}

} // namespace inkmacro
