#include "app/TerminalIO.h"

#include "app/console.h"
#include "app/earlyEnd.h"
#include "app/valueText.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cerrno>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstring>

#include <histedit.h>
#include <langinfo.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

namespace inkmacro {

/// Where answers come from.
class AnswerReader
{
public:
    AnswerReader() = default;
    virtual ~AnswerReader() = default;
    AnswerReader(const AnswerReader&) = delete;
    AnswerReader& operator=(const AnswerReader&) = delete;

    /// Shows the prompt and takes one line, without its end. `expected` are answers that can be completed. False at the
    /// end of input and when SIGINT came.
    virtual bool read(const QString& prompt, const CFxExpectedAnswers& expected, QByteArray& line) = 0;
};

namespace {

volatile std::sig_atomic_t interrupted = 0;

/// SIGINT, unless the caller had ignored it, breaks off a system call for as long as this lives.
class InterruptBreaks
{
public:
    InterruptBreaks()
    {
        interrupted = 0;
        sigaction(SIGINT, nullptr, &before_);
        if (before_.sa_handler == SIG_IGN)
            return;
        struct sigaction breaking = {};
        breaking.sa_handler = [](int) { interrupted = 1; };
        sigaction(SIGINT, &breaking, nullptr);
    }
    ~InterruptBreaks() { sigaction(SIGINT, &before_, nullptr); }
    InterruptBreaks(const InterruptBreaks&) = delete;
    InterruptBreaks& operator=(const InterruptBreaks&) = delete;

private:
    struct sigaction before_ = {};
};

void showAtOnce(const QString& text)
{
    printOut(text);
    flushOut();
}

class PlainReader final : public AnswerReader
{
public:
    bool read(const QString& prompt, const CFxExpectedAnswers&, QByteArray& line) override
    {
        showAtOnce(prompt + '\n');
        const InterruptBreaks breaks;
        line.clear();
        for (;;) {
            const int end = bytes_.indexOf('\n');
            line += bytes_.mid(0, end);
            bytes_ = end < 0 ? QByteArray() : bytes_.mid(end + 1);
            if (end >= 0)
                break;
            if (!fill())
                return !interrupted && !line.isEmpty();
        }
        if (line.endsWith('\r'))
            line.chop(1);
        return true;
    }

private:
    bool fill()
    {
        std::array<char, 65536> piece;
        const ssize_t got = isReady() ? ::read(STDIN_FILENO, piece.data(), piece.size()) : 0;
        bytes_ = QByteArray(piece.data(), static_cast<int>(std::max<ssize_t>(got, 0)));
        return got > 0;
    }

    /// Waits for input; false when SIGINT came. It comes only while this waits, so that none is overlooked.
    static bool isReady()
    {
        sigset_t interrupt;
        sigset_t before;
        sigemptyset(&interrupt);
        sigaddset(&interrupt, SIGINT);
        pthread_sigmask(SIG_BLOCK, &interrupt, &before);
        pollfd input{STDIN_FILENO, POLLIN, 0};
        while (!interrupted && ppoll(&input, 1, nullptr, &before) < 0 && errno == EINTR) {
        }
        pthread_sigmask(SIG_SETMASK, &before, nullptr);
        return !interrupted;
    }

    QByteArray bytes_; ///< read already, and of a later line
};

/// What both texts begin with.
QString commonBeginning(const QString& left, const QString& right, Qt::CaseSensitivity letters)
{
    int length = 0;
    while (length < left.length() && length < right.length() &&
           left.midRef(length, 1).compare(right.midRef(length, 1), letters) == 0)
        ++length;
    // Half of a letter is none.
    if (length > 0 && left[length - 1].isHighSurrogate())
        --length;
    return left.left(length);
}

/// Those names of files and folders that the text may be the beginning of, with all that stands in front of them.
QStringList namesOfFiles(const QString& begun, const QString& pattern)
{
    const QString folder = begun.left(begun.lastIndexOf('/') + 1);
    const bool hidden = begun.startsWith(folder + '.');
    QStringList names;
    const auto filters = QDir::Files | QDir::AllDirs | QDir::NoDotAndDotDot;
    for (const QFileInfo& found : QDir(folder.isEmpty() ? QStringLiteral(".") : folder)
                                      .entryInfoList({pattern}, hidden ? filters | QDir::Hidden : filters))
        names.append(folder + found.fileName() + (found.isDir() ? "/" : ""));
    return names;
}

/// All of them as far as they are the same, of those that the text is the beginning of.
QString completed(const QString& begun, const QStringList& answers, Qt::CaseSensitivity letters)
{
    QString common;
    for (const QString& answer : answers)
        // The editor would show what is in it.
        if (answer.startsWith(begun, letters) && printable(answer) == answer)
            common = common.isEmpty() ? answer : commonBeginning(common, answer, letters);
    return common;
}

/// Where the environment names no encoding letters are UTF-8, as everywhere in this program; the editor would drop
/// them.
void readLettersWithoutLocale()
{
    if (std::strcmp(nl_langinfo(CODESET), "ANSI_X3.4-1968") == 0)
        std::setlocale(LC_CTYPE, "C.UTF-8");
}

/// Gives the terminal back as it was, however the process ends.
class TerminalRestorer final : private EarlyEnd
{
public:
    TerminalRestorer()
    {
        if (tcgetattr(STDIN_FILENO, &before_) == 0)
            beginWatch();
        else
            isWatching_ = false;
    }
    ~TerminalRestorer()
    {
        if (isWatching_)
            endWatch();
    }

private:
    void endEarly(int) noexcept override
    {
        // A process in the background has no business with it, and would be stopped.
        if (tcgetpgrp(STDIN_FILENO) != getpgrp())
            return;
        tcsetattr(STDIN_FILENO, TCSANOW, &before_);
        [[maybe_unused]] const ssize_t written = ::write(STDOUT_FILENO, "\n", 1);
    }

    struct termios before_ = {};
    bool isWatching_ = true;
};

class LineEditor final : public AnswerReader
{
public:
    LineEditor() : editor_(el_init("inkmacro", stdin, stdout, stderr)), history_(history_init())
    {
        readLettersWithoutLocale();
        HistEvent event;
        history(history_, &event, H_SETSIZE, 100);
        el_set(editor_, EL_CLIENTDATA, this);
        el_set(
            editor_, EL_PROMPT, +[](EditLine* editor) { return self(editor).prompt_.data(); });
        el_set(editor_, EL_EDITOR, "emacs");
        el_set(editor_, EL_HIST, history, history_);
        // The wide form keeps these names, of the other it would make copies for ever.
        el_wset(
            editor_, EL_ADDFN, L"complete-answer", L"Complete the answer",
            +[](EditLine* editor, wint_t) { return self(editor).complete(); });
        el_wset(
            editor_, EL_ADDFN, L"cancel-answer", L"Cancel the command",
            +[](EditLine*, wint_t) -> unsigned char { return CC_EOF; });
        el_set(editor_, EL_BIND, "^I", "complete-answer", nullptr);
        el_set(editor_, EL_BIND, "\\e^M", "cancel-answer", nullptr);
        el_set(editor_, EL_BIND, "\\e^J", "cancel-answer", nullptr);
        // Ctrl+C as a key: a signal could come when nobody waits for it.
        el_set(editor_, EL_SETTY, "-d", "-isig", nullptr);
        el_set(editor_, EL_BIND, "^C", "cancel-answer", nullptr);
    }
    ~LineEditor() override
    {
        history_end(history_);
        el_end(editor_);
    }

    bool read(const QString& prompt, const CFxExpectedAnswers& expected, QByteArray& line) override
    {
        showAtOnce({});
        const InterruptBreaks breaks;
        prompt_ = prompt.toLocal8Bit();
        expected_ = &expected;
        // The editor itself would do this behind the prompt, and lose a key that comes in between.
        el_set(editor_, EL_PREP_TERM, 1);
        int length = 0;
        const char* const text = el_gets(editor_, &length);
        if (!text || length <= 0) {
            showAtOnce("\n");
            return false;
        }
        line = QByteArray(text, length);
        if (line.endsWith('\n'))
            line.chop(1);
        if (!line.isEmpty()) {
            HistEvent event;
            history(history_, &event, H_ENTER, line.constData());
        }
        return true;
    }

private:
    static LineEditor& self(EditLine* editor)
    {
        void* data = nullptr;
        el_get(editor, EL_CLIENTDATA, &data);
        return *static_cast<LineEditor*>(data);
    }

    /// Completes what is in front of the cursor as far as it is unambiguous.
    unsigned char complete()
    {
        const LineInfoW* const info = el_wline(editor_);
        const auto letters = static_cast<int>(info->cursor - info->buffer);
        const QString begun = QString::fromWCharArray(info->buffer, letters);
        QStringList answers;
        for (const CFxString& word : expected_->words)
            answers.append(word);
        const bool files = !expected_->files.isEmpty();
        if (files)
            answers += namesOfFiles(begun, expected_->files);
        const QString common = completed(begun, answers, files ? Qt::CaseSensitive : Qt::CaseInsensitive);
        if (common.length() <= begun.length())
            return CC_REFRESH_BEEP;
        el_wdeletestr(editor_, letters);
        el_winsertstr(editor_, common.toStdWString().c_str());
        return CC_REFRESH;
    }

    TerminalRestorer restorer_; ///< in front of the editor, which changes the terminal
    EditLine* editor_;
    History* history_;
    QByteArray prompt_;
    const CFxExpectedAnswers* expected_ = nullptr;
};

/// Of the terminal, when both standard input and standard output are one; else of standard input as it comes.
std::unique_ptr<AnswerReader> makeAnswerReader()
{
    if (isatty(STDIN_FILENO) && isatty(STDOUT_FILENO))
        return std::make_unique<LineEditor>();
    return std::make_unique<PlainReader>();
}

} // namespace

TerminalIO::TerminalIO(OdDbDatabase& database) : CFxUserIO(database), reader_(makeAnswerReader())
{
}

TerminalIO::~TerminalIO() = default;

void TerminalIO::ShowMessage(const CFxString& message)
{
    printOut(printable(message) + '\n');
}

bool TerminalIO::ReadAnswer(const CFxString& prompt, const CFxExpectedAnswers& expected, CFxString& answer)
{
    constexpr char escape = 0x1B;
    QByteArray line;
    if (!reader_->read(printable(prompt), expected, line) || line.endsWith(escape))
        return false;
    answer = QString::fromLocal8Bit(line);
    return true;
}

} // namespace inkmacro
