#include "module/Procedures.h"

#include "module/codeNames.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

namespace inkmacro {

namespace {

constexpr int kBlock = 64 * 1024;

using Place = ProcedureLanguage::Place;

constexpr int kMainNumber = 0;
constexpr int kSeveral = -1;
constexpr int kDeclared = -2; ///< several, and declared for them

bool isBlank(QStringView line)
{
    return indentationOf(line) == line.size();
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

Procedures::Procedures(Target target, const QString& folder)
    : target_(target),
      language_(ProcedureLanguage::of(target)),
      limits_(language_->limits()),
      blocks_(1),
      waiting_(folder + "/XXXXXX")
{
}

void Procedures::frameLine(const QString& line)
{
    const bool isHead = blocks_.front().part.lines.isEmpty();
    (isHead ? head_ : foot_).append({line, {}});
}

void Procedures::line(const QString& line, const Origin& origin)
{
    if (continued_.isEmpty())
        continuedOrigin_ = origin;
    continued_ += line;
    if (language_->goesOn(line))
        continued_ += '\n';
    else
        addWhole(std::exchange(continued_, QString()), continuedOrigin_);
}

void Procedures::addWhole(const QString& line, const Origin& origin)
{
    const auto [place, leavesLoop, leavesMain] = language_->shapeOf(trimmed(line));
    Run unit;
    if (line.contains('\n'))
        for (const QString& part : line.split('\n'))
            unit.lines.append({part, origin});
    else
        unit.lines.append({line, origin});
    unit.letters = line.size();
    unit.leavesLoop = leavesLoop;
    unit.leavesMain = leavesMain;
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

bool Procedures::isLong(const Run& run, const Run& more) const
{
    return run.calls > limits_.lines || run.lines.size() - run.calls + more.lines.size() > limits_.lines ||
           run.letters + more.letters > limits_.letters;
}

bool Procedures::divide(Block& block)
{
    Run& run = block.part;
    const int actionEnd = std::exchange(block.actionEnd, 0);
    int from = run.calls;
    int to = actionEnd > from ? actionEnd : run.lines.size();
    if (run.calls > limits_.lines) {
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
    const QString call = first->text.left(static_cast<int>(indentationOf(first->text))) + language_->call(count_);
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
    toWaiting_ << '\n' << language_->opening(count_) << '\n';
    addLines(waitingOrigins_, {}, 2);
    const QString indentation = language_->indentation();
    const auto begin = std::find_if_not(lines.begin(), lines.end(), isBlankLine);
    const auto end = std::find_if_not(lines.rbegin(), lines.rend(), isBlankLine).base();
    qsizetype least = indentationOf(begin->text);
    std::for_each(begin, end, [&](const Line& line) {
        if (!isBlankLine(line))
            least = std::min(least, indentationOf(line.text));
    });
    std::for_each(begin, end, [&](const Line& line) {
        if (!isBlankLine(line))
            toWaiting_ << indentation << QStringView(line.text).mid(least);
        toWaiting_ << '\n';
        addLines(waitingOrigins_, line.origin);
    });
    toWaiting_ << language_->closing() << '\n';
    addLines(waitingOrigins_, {});
}

void Procedures::noteNames(const Lines& lines, int procedure)
{
    QString key; // its memory serves all names
    for (const Line& line : lines)
        forNames(line.text, target_, [&](QStringView name, qsizetype) {
            if (name.front().isDigit())
                return;
            setKey(key, name);
            if (const auto user = users_.find(key); user == users_.end())
                users_.insert(key, procedure);
            else if (*user != procedure)
                *user = kSeveral;
        });
}

/// As the language compares names.
void Procedures::setKey(QString& key, QStringView name) const
{
    key.resize(static_cast<int>(name.size()));
    const bool folds = isBasic(target_);
    std::transform(name.begin(), name.end(), key.begin(), [folds](QChar one) { return folds ? one.toLower() : one; });
}

bool Procedures::declaresShared(QStringView line) const
{
    const ProcedureLanguage::Names names = language_->declaredIn(line);
    QString key;
    return std::any_of(names.begin(), names.end(), [&](QStringView name) {
        setKey(key, name);
        return users_.value(key) < kMainNumber;
    });
}

bool Procedures::declare(QTextStream& stream, QStringView line)
{
    if (!declaresShared(line))
        return false;
    bool isNew = false;
    QString key;
    for (const QStringView name : language_->declaredIn(line)) {
        setKey(key, name);
        isNew |= std::exchange(users_[key], kDeclared) != kDeclared;
    }
    if (isNew)
        stream << language_->shared(line) << '\n';
    return isNew;
}

std::optional<QString> Procedures::unshared(const QString& line) const
{
    if (!declaresShared(line))
        return line;
    const QString text = language_->withoutDeclaration(line);
    return text.isEmpty() ? std::nullopt : std::optional(text);
}

QString Procedures::declarationIn(std::string_view line) const
{
    const bool declares = line.find(language_->keyword()) != std::string_view::npos;
    return declares ? QString::fromUtf8(line.data(), static_cast<int>(line.size()) - 1) : QString();
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
    if (!continued_.isEmpty())
        addWhole(continued_.chopped(1), continuedOrigin_);
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
    const Lines body = language_->isNested() ? blocks_.front().part.lines : blocks_.front().part.lines + foot_;
    noteNames(head_ + body, kMainNumber);
    const auto isMain = [this](const Line& line) { return line.text == mainLine(target_); };
    const auto begin = language_->isNested() ? head_.end() : std::find_if(head_.begin(), head_.end(), isMain);
    std::for_each(head_.begin(), begin, put);

    // In front of a procedure of its own a blank line stands in any case.
    bool isApart = !language_->isNested();
    const auto declareIn = [&](const Line& line) {
        if (!declare(stream, line.text))
            return;
        isApart = true;
        tell(line.origin);
    };
    std::for_each(begin, head_.end(), declareIn);
    std::for_each(body.begin(), body.end(), declareIn);
    forWaiting([&](std::string_view line, const Origin& origin) { declareIn({declarationIn(line), origin}); });
    if (isApart)
        put({});

    // The head gives each of its variables a value.
    std::for_each(begin, head_.end(), [&](const Line& line) {
        if (!declaresShared(line.text))
            put(line);
    });
    const auto putUnshared = [&](const Line& line) {
        if (const std::optional<QString> text = unshared(line.text))
            put({*text, line.origin});
    };
    std::for_each(body.begin(), body.end(), putUnshared);
    stream.flush();
    forWaiting([&](std::string_view line, const Origin& origin) {
        const QString declaration = declarationIn(line);
        if (declaresShared(declaration)) {
            putUnshared({declaration, origin});
            stream.flush();
        } else {
            stream.device()->write(line.data(), static_cast<qint64>(line.size()));
            tell(origin);
        }
    });
    if (language_->isNested())
        std::for_each(foot_.begin(), foot_.end(), put);
}

} // namespace inkmacro
