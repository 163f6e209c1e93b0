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
    (isHead ? head_ : foot_) += line;
}

void Procedures::line(const QString& line)
{
    continued_ += line;
    if (language_->goesOn(line))
        continued_ += '\n';
    else
        addWhole(std::exchange(continued_, QString()));
}

void Procedures::addWhole(const QString& line)
{
    const auto [place, leavesLoop, leavesMain] = language_->shapeOf(trimmed(line));
    Run unit;
    unit.lines = line.contains('\n') ? line.split('\n') : QStringList(line);
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
    if (run.leavesLoop || run.leavesMain || std::all_of(run.lines.begin() + from, run.lines.begin() + to, isBlank))
        return false;
    extract(run, from, to);
    return true;
}

void Procedures::extract(Run& run, int from, int to)
{
    const QStringList taken = run.lines.mid(from, to - from);
    writeProcedure(taken);
    noteNames(taken, count_);
    const auto first = std::find_if_not(taken.begin(), taken.end(), isBlank);
    const QString call = first->left(static_cast<int>(indentationOf(*first))) + language_->call(count_);
    run.lines = run.lines.mid(0, from) + QStringList(call) + run.lines.mid(to);
    run.calls = from + 1;
    run.letters = 0;
    for (const QString& line : std::as_const(run.lines))
        run.letters += line.size();
}

void Procedures::writeProcedure(const QStringList& lines)
{
    if (++count_ == 1) {
        failed_ = !waiting_.open();
        toWaiting_.setDevice(&waiting_);
        toWaiting_.setCodec("UTF-8");
    }
    if (failed_)
        return;
    toWaiting_ << '\n' << language_->opening(count_) << '\n';
    const QString indentation = language_->indentation();
    const auto begin = std::find_if_not(lines.begin(), lines.end(), isBlank);
    const auto end = std::find_if_not(lines.rbegin(), lines.rend(), isBlank).base();
    qsizetype least = indentationOf(*begin);
    std::for_each(begin, end, [&](const QString& line) {
        if (!isBlank(line))
            least = std::min(least, indentationOf(line));
    });
    std::for_each(begin, end, [&](const QString& line) {
        if (!isBlank(line))
            toWaiting_ << indentation << QStringView(line).mid(least);
        toWaiting_ << '\n';
    });
    toWaiting_ << language_->closing() << '\n';
}

void Procedures::noteNames(const QStringList& lines, int procedure)
{
    QString key; // its memory serves all names
    for (const QString& line : lines)
        forNames(line, target_, [&](QStringView name, qsizetype) {
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

void Procedures::writeUnshared(QTextStream& stream, const QString& line) const
{
    const bool isShared = declaresShared(line);
    const QString text = isShared ? language_->withoutDeclaration(line) : line;
    if (!isShared || !text.isEmpty())
        stream << text << '\n';
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
    std::string text;
    for (QByteArray block = waiting_.read(kBlock); !block.isEmpty(); block = waiting_.read(kBlock)) {
        text.append(block.constData(), static_cast<std::size_t>(block.size()));
        std::size_t from = 0;
        for (auto end = text.find('\n'); end != std::string::npos; end = text.find('\n', from)) {
            use(std::string_view(text).substr(from, end + 1 - from));
            from = end + 1;
        }
        text.erase(0, from);
    }
}

void Procedures::finish(QTextStream& stream)
{
    // Only of a macro that is given up.
    if (!continued_.isEmpty())
        addWhole(continued_.chopped(1));
    while (blocks_.size() > 1)
        closeBlock({});
    Run& main = blocks_.front().part;
    if (count_ > 0 && !main.leavesMain && main.lines.size() > main.calls)
        extract(main, main.calls, main.lines.size());
    const auto write = [&stream](const QString& line) { stream << line << '\n'; };
    if (count_ == 0) {
        for (const QStringList* const lines : {&head_, &main.lines, &foot_})
            std::for_each(lines->begin(), lines->end(), write);
    } else {
        writeDivided(stream);
    }
    if (failed_ || (count_ > 0 && (toWaiting_.status() != QTextStream::Ok || waiting_.error() != QFile::NoError)))
        stream.setStatus(QTextStream::WriteFailed);
}

void Procedures::writeDivided(QTextStream& stream)
{
    const QStringList body = language_->isNested() ? blocks_.front().part.lines : blocks_.front().part.lines + foot_;
    noteNames(head_ + body, kMainNumber);
    const auto write = [&stream](const QString& line) { stream << line << '\n'; };
    const auto begin = language_->isNested() ? head_.end() : std::find(head_.begin(), head_.end(), mainLine(target_));
    std::for_each(head_.begin(), begin, write);

    // In front of a procedure of its own a blank line stands in any case.
    bool isApart = !language_->isNested();
    const auto declareIn = [&](const QString& line) { isApart |= declare(stream, line); };
    std::for_each(begin, head_.end(), declareIn);
    std::for_each(body.begin(), body.end(), declareIn);
    forWaiting([&](std::string_view line) { declareIn(declarationIn(line)); });
    if (isApart)
        stream << '\n';

    // The head gives each of its variables a value.
    std::for_each(begin, head_.end(), [&](const QString& line) {
        if (!declaresShared(line))
            write(line);
    });
    std::for_each(body.begin(), body.end(), [&](const QString& line) { writeUnshared(stream, line); });
    stream.flush();
    forWaiting([&](std::string_view line) {
        const QString declaration = declarationIn(line);
        if (declaresShared(declaration)) {
            writeUnshared(stream, declaration);
            stream.flush();
        } else {
            stream.device()->write(line.data(), static_cast<qint64>(line.size()));
        }
    });
    if (language_->isNested())
        std::for_each(foot_.begin(), foot_.end(), write);
}

} // namespace inkmacro
