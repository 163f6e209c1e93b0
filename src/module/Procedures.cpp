#include "module/Procedures.h"

#include "module/codeNames.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>

namespace inkmacro {

namespace {

/// So many that a procedure stays far below the 64 KB of compiled code that VBA takes. One may have some lines more
/// when it consists of one block.
constexpr int kMostLines = 250;

constexpr int kBlock = 64 * 1024;

constexpr int kNobody = -1;
constexpr int kSeveral = -2;
constexpr int kMainNumber = 0;

constexpr QStringView kDim = u"Dim ";

enum class Place
{
    Within,
    Opens,
    OpensLoop,
    Divides,
    Closes
};

/// Knows the blocks that statements are written with.
Place placeOf(QStringView code)
{
    if (code.startsWith(u"If ") && code.endsWith(u" Then"))
        return Place::Opens;
    if (code.startsWith(u"For "))
        return Place::OpensLoop;
    if (code.startsWith(u"Else"))
        return Place::Divides;
    if (code == u"End If" || code == u"Next")
        return Place::Closes;
    return Place::Within;
}

QString nameOf(int procedure)
{
    return QString("RecordedActions%1").arg(procedure);
}

qsizetype indentationOf(QStringView line)
{
    return std::find_if(line.begin(), line.end(), [](QChar one) { return one != ' '; }) - line.begin();
}

/// As the language compares names.
void setKey(QString& key, QStringView name)
{
    key.resize(static_cast<int>(name.size()));
    std::transform(name.begin(), name.end(), key.begin(), [](QChar one) { return one.toLower(); });
}

QString keyOf(QStringView name)
{
    QString key;
    setKey(key, name);
    return key;
}

/// The line, without its end, when it declares a variable.
QString declarationIn(std::string_view line)
{
    const auto code = std::find_if(line.begin(), line.end(), [](char one) { return one != ' '; });
    const bool declares = line.end() - code > kDim.size() && std::equal(kDim.begin(), kDim.end(), code);
    return declares ? QString::fromUtf8(line.data(), static_cast<int>(line.size()) - 1) : QString();
}

bool isBlank(QStringView line)
{
    return indentationOf(line) == line.size();
}

/// Whether a variable holds what is no object: its type is one of VBA's own or an enumeration.
bool holdsValue(QStringView type)
{
    const QStringView name = type.mid(type.lastIndexOf(u'.') + 1);
    static constexpr std::array<QStringView, 5> values{u"Double", u"Long", u"Integer", u"Boolean", u"Single"};
    return name.endsWith(u"_e") || std::find(values.begin(), values.end(), name) != values.end();
}

/// What a variable of `declaration`, which stands behind the `Dim`, holds where it is declared. One of a module keeps
/// the value from the run before.
QString asNew(QStringView declaration)
{
    const QStringView name = nameAt(declaration, 0);
    const QStringView behind = trimmed(declaration.mid(name.size()));
    if (behind.startsWith(u'('))
        return "Erase " + name.toString();
    const QString type = behind.startsWith(u"As ") ? behind.mid(3).toString().section(' ', 0, 0) : QString();
    if (type == "String")
        return name.toString() + " = \"\"";
    if (type == "Variant" || type.isEmpty())
        return name.toString() + " = Empty";
    return holdsValue(type) ? name.toString() + " = 0" : "Set " + name.toString() + " = Nothing";
}

} // namespace

bool Procedures::isBlankLine(const Line& line)
{
    return isBlank(line.text);
}

void Procedures::Run::add(const Run& other)
{
    lines += other.lines;
    letters += other.letters;
    leavesLoop |= other.leavesLoop;
    leavesMain |= other.leavesMain;
}

Procedures::Procedures(const QString& folder) : blocks_(1), waiting_(folder + "/XXXXXX")
{
}

void Procedures::frameLine(const QString& line)
{
    const bool isHead = blocks_.front().part.lines.isEmpty();
    (isHead ? head_ : foot_).append({line, {}});
    if (isHead)
        noteDeclaration(line);
}

void Procedures::line(const QString& line, const Origin& origin)
{
    noteDeclaration(line);
    if (continued_.isEmpty())
        continuedOrigin_ = origin;
    continued_ += line;
    if (continued_.endsWith(" _"))
        continued_ += '\n';
    else
        addWhole(std::exchange(continued_, QString()), continuedOrigin_);
}

void Procedures::noteDeclaration(QStringView line)
{
    const QStringView code = trimmed(line);
    if (code.startsWith(kDim))
        users_.insert(keyOf(nameAt(code, kDim.size())), kNobody);
}

void Procedures::addWhole(const QString& line, const Origin& origin)
{
    const QStringView code = trimmed(line);
    Run unit;
    if (line.contains('\n'))
        for (const QString& part : line.split('\n'))
            unit.lines.append({part, origin});
    else
        unit.lines.append({line, origin});
    unit.letters = line.size();
    unit.leavesLoop = code.endsWith(u"Exit For");
    unit.leavesMain = code.endsWith(u"Exit Sub");
    const Place place = placeOf(code);
    if (place == Place::Opens || place == Place::OpensLoop) {
        blocks_.emplace_back();
        blocks_.back().closed = std::move(unit);
        blocks_.back().isLoop = place == Place::OpensLoop;
    } else if (place == Place::Divides && blocks_.size() > 1) {
        closePart(blocks_.back());
        blocks_.back().closed.add(unit);
    } else if (place == Place::Closes && blocks_.size() > 1) {
        closeBlock(unit);
    } else {
        add(unit);
    }
}

void Procedures::closePart(Block& block)
{
    // What stands in all parts of a block may be long together.
    if (isLong(block.part, block.closed))
        divide(block);
    block.closed.add(std::exchange(block.part, Run()));
}

void Procedures::closeBlock(const Run& end)
{
    closePart(blocks_.back());
    Block block = std::move(blocks_.back());
    blocks_.pop_back();
    block.closed.add(end);
    if (block.isLoop)
        block.closed.leavesLoop = false;
    add(block.closed);
}

void Procedures::add(const Run& unit)
{
    Block& block = blocks_.back();
    while (isLong(block.part, unit) && divide(block))
        continue;
    block.part.add(unit);
}

void Procedures::endAction()
{
    if (blocks_.size() == 1)
        blocks_.front().actionEnd = blocks_.front().part.lines.size();
}

bool Procedures::isLong(const Run& run, const Run& more)
{
    return run.calls > kMostLines || run.lines.size() - run.calls + more.lines.size() > kMostLines ||
           run.letters + more.letters > kMostLetters / 2;
}

bool Procedures::divide(Block& block)
{
    Run& run = block.part;
    const int actionEnd = std::exchange(block.actionEnd, 0);
    int from = run.calls;
    int to = actionEnd > from ? actionEnd : run.lines.size();
    if (run.calls > kMostLines) {
        from = 0;
        to = run.calls;
    }
    if (run.leavesLoop || run.leavesMain || std::all_of(run.lines.begin() + from, run.lines.begin() + to, isBlankLine))
        return false;
    extract(run, from, to);
    return true;
}

void Procedures::extract(Run& run, int from, int to)
{
    const Lines taken = run.lines.mid(from, to - from);
    writeProcedure(taken);
    noteNames(taken, count_);
    const auto first = std::find_if_not(taken.begin(), taken.end(), isBlankLine);
    const QString call = first->text.left(static_cast<int>(indentationOf(first->text))) + nameOf(count_);
    run.lines = run.lines.mid(0, from) + Lines{{call, {}}} + run.lines.mid(to);
    run.calls = from + 1;
    run.letters = 0;
    for (const Line& line : std::as_const(run.lines))
        run.letters += line.text.size();
}

void Procedures::writeProcedure(const Lines& lines)
{
    if (++count_ == 1) {
        failed_ = !waiting_.open();
        toWaiting_.setDevice(&waiting_);
        toWaiting_.setCodec("UTF-8");
    }
    if (failed_)
        return;
    toWaiting_ << "\nPrivate Sub " << nameOf(count_) << "()\n";
    addLines(waitingOrigins_, {}, 2);
    const auto begin = std::find_if_not(lines.begin(), lines.end(), isBlankLine);
    const auto end = std::find_if_not(lines.rbegin(), lines.rend(), isBlankLine).base();
    qsizetype least = indentationOf(begin->text);
    std::for_each(begin, end, [&](const Line& line) {
        if (!isBlankLine(line))
            least = std::min(least, indentationOf(line.text));
    });
    std::for_each(begin, end, [&](const Line& line) {
        if (!isBlankLine(line))
            toWaiting_ << "    " << QStringView(line.text).mid(least);
        toWaiting_ << '\n';
        addLines(waitingOrigins_, line.origin);
    });
    toWaiting_ << "End Sub\n";
    addLines(waitingOrigins_, {});
}

void Procedures::noteNames(const Lines& lines, int procedure)
{
    QString key; // its memory serves all names
    for (const Line& line : lines)
        forNames(line.text, Target::Vba, [&](QStringView name, qsizetype) {
            if (name.front().isDigit())
                return;
            setKey(key, name);
            if (const auto user = users_.find(key); user != users_.end())
                *user = *user == kNobody || *user == procedure ? procedure : kSeveral;
        });
}

QStringView Procedures::sharedIn(QStringView line) const
{
    const QStringView code = trimmed(line);
    if (!code.startsWith(kDim))
        return {};
    const QStringView declaration = code.mid(kDim.size());
    return users_.value(keyOf(nameAt(declaration, 0))) == kSeveral ? declaration : QStringView();
}

template<class Use>
void Procedures::forWaiting(const Use& use)
{
    if (failed_)
        return;
    toWaiting_.flush();
    waiting_.seek(0);
    auto run = waitingOrigins_.cbegin();
    std::uint32_t used = 0; // lines of that run
    std::string text;
    for (QByteArray block = waiting_.read(kBlock); !block.isEmpty(); block = waiting_.read(kBlock)) {
        text.append(block.constData(), static_cast<std::size_t>(block.size()));
        std::size_t from = 0;
        for (auto end = text.find('\n'); end != std::string::npos; end = text.find('\n', from)) {
            use(std::string_view(text).substr(from, end + 1 - from), run->origin);
            from = end + 1;
            if (++used == run->count) {
                ++run;
                used = 0;
            }
        }
        text.erase(0, from);
    }
}

void Procedures::finish(QTextStream& stream, const OriginSink& told)
{
    // Only of a macro that is given up.
    while (blocks_.size() > 1)
        closeBlock({});
    Run& main = blocks_.front().part;
    if (count_ > 0 && !main.leavesMain && main.lines.size() > main.calls)
        extract(main, main.calls, main.lines.size());
    if (count_ == 0) {
        for (const Lines* const lines : {&head_, &main.lines, &foot_})
            for (const auto& [text, origin] : *lines) {
                stream << text << '\n';
                if (told)
                    told({origin, 1});
            }
    } else {
        writeDivided(stream, told);
    }
    if (failed_ || (count_ > 0 && (toWaiting_.status() != QTextStream::Ok || waiting_.error() != QFile::NoError)))
        stream.setStatus(QTextStream::WriteFailed);
}

void Procedures::writeDivided(QTextStream& stream, const OriginSink& told)
{
    const auto tell = [&told](const Origin& origin) {
        if (told)
            told({origin, 1});
    };
    const auto put = [&](const Line& line) {
        stream << line.text << '\n';
        tell(line.origin);
    };
    const Lines body = blocks_.front().part.lines + foot_;
    noteNames(head_ + body, kMainNumber);
    const auto begin = std::find_if(head_.begin(), head_.end(), [](const Line& line) { return line.text == kMain; });
    std::for_each(head_.begin(), begin, put);

    const auto declare = [&](const Line& line) {
        if (const QStringView declaration = sharedIn(line.text); !declaration.isEmpty()) {
            stream << "Private " << declaration << '\n';
            tell(line.origin);
        }
    };
    std::for_each(begin, head_.end(), declare);
    std::for_each(body.begin(), body.end(), declare);
    forWaiting([&](std::string_view line, const Origin& origin) { declare({declarationIn(line), origin}); });
    put({});

    // The head gives each of its variables a value.
    std::for_each(begin, head_.end(), [&](const Line& line) {
        if (sharedIn(line.text).isEmpty())
            put(line);
    });
    const auto write = [&](const Line& line) {
        const QStringView declaration = sharedIn(line.text);
        if (declaration.isEmpty())
            put(line);
        else
            put({line.text.left(static_cast<int>(indentationOf(line.text))) + asNew(declaration), line.origin});
    };
    std::for_each(body.begin(), body.end(), write);
    stream.flush();
    forWaiting([&](std::string_view line, const Origin& origin) {
        const QString declaration = declarationIn(line);
        if (sharedIn(declaration).isEmpty()) {
            stream.device()->write(line.data(), static_cast<qint64>(line.size()));
            tell(origin);
        } else {
            write({declaration, origin});
            stream.flush();
        }
    });
}

} // namespace inkmacro
