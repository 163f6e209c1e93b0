// A macro is run in node, which the scripts of view/ make look like the application.

#include "app/verification.h"

#include "app/ExitStatus.h"
#include "app/childProcess.h"
#include "app/console.h"
#include "app/conversion.h"
#include "app/heldRecording.h"
#include "app/report.h"
#include "app/reportSchema.h"
#include "app/temporaryFolder.h"
#include "app/valueText.h"
#include "view/scripts.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace inkmacro {

namespace {

// Macros end in .html, so none has one of these names. What ends in .cjs is a script in itself to node, whatever
// package.json stands above it.
constexpr char kScript[] = "verify.cjs";
constexpr char kJob[] = "job.json";
constexpr char kReport[] = "report.json";
constexpr char kEdited[] = "edited";

const TargetRow& javaScript()
{
    return *std::find_if(targetTable.begin(), targetTable.end(),
                         [](const TargetRow& row) { return row.target == Target::JavaScript; });
}

/// In a text of JSON nothing stands for a byte of a name that is not UTF-8.
QString nameOfMacro(const QString& input)
{
    return macroName(input.isValidUtf16() ? input : QStringLiteral("-"), javaScript());
}

/// Node, as long as it runs.
class NodeRun final : private EarlyEnd
{
public:
    explicit NodeRun(const QStringList& command)
    {
        for (const QString& word : command)
            command_.push_back(QFile::encodeName(word));
        beginWatch();
    }
    ~NodeRun() { endWatch(); }

    /// Passes on what it prints. Gives an errno, or 0 and what waitpid tells of its end.
    int run(int& result)
    {
        flushOut();
        if (const int error = child_.start("/dev/null", [this] { return becomeNode(); }))
            return error;
        while (child_.prints()) {
            takeSome({&child_.output, &child_.messages}, -1);
            passOn(child_.output, printOut);
            passOn(child_.messages, printMessage);
        }
        result = child_.await();
        return 0;
    }

private:
    /// In the new process.
    int becomeNode()
    {
        std::vector<char*> arguments;
        for (QByteArray& word : command_)
            arguments.push_back(word.data());
        arguments.push_back(nullptr);
        execv(arguments.front(), arguments.data());
        complain(QString("%1: %2").arg(QFile::decodeName(command_.front()), qt_error_string(errno)));
        return kFailed;
    }

    /// Whole lines, so that no letter is cut where a terminal shows it, unless one is very long, and what is behind the
    /// last one at the end.
    template<class Print>
    static void passOn(Printed& printed, Print print)
    {
        constexpr int longest = 1 << 20;
        const bool all = !printed.pipe.isOpen() || printed.bytes.size() > longest;
        const int length = all ? printed.bytes.size() : printed.bytes.lastIndexOf('\n') + 1;
        if (length > 0)
            print(printed.bytes.left(length));
        printed.bytes.remove(0, length);
    }
    static void printOut(const QByteArray& bytes) { inkmacro::printOut(bytes); }
    static void printMessage(const QByteArray& bytes)
    {
        for (const QString& line : QString::fromUtf8(bytes.endsWith('\n') ? bytes.chopped(1) : bytes).split('\n'))
            printLine(line);
    }

    void endEarly(int signal) noexcept override
    {
        child_.send(signal);
        child_.awaitBySignal();
    }

    std::vector<QByteArray> command_;
    ChildProcess child_;
};

class Verification
{
public:
    /// Raises std::system_error.
    Verification(const QString& input, const std::optional<QString>& edited, bool json)
        : input_(input),
          edited_(edited),
          json_(json),
          folder_(temporaryFolder(), namesOf(input)),
          job_{.input = input,
               .target = &javaScript(),
               .macro = path(nameOfMacro(input)),
               .hasMap = true,
               .home = &folder_}
    {
    }

    /// Raises PlacingError.
    int run(const QString& node)
    {
        const std::optional<QString> held = holdRecording(input_, folder_);
        if (!held)
            return kUnreadable;
        job_.kept = *held;
        HostSettings host;
        host.repair = true;
        Telling telling;
        telling.report = ReportForm::Json;
        telling.reportFile = path(kReport);
        telling.quiet = true;
        ReportDocument report(telling, &folder_);
        const int status = report.finish(convertAlone(job_, host, telling, report));
        if (status != kDone)
            return status;
        nameWork("verifying " + input_);
        write(kScript, verifyScript());
        write(kJob, jobText());
        return runNode({node, path(kScript), path(kJob)});
    }

private:
    static std::vector<std::string> namesOf(const QString& input)
    {
        std::vector<std::string> names{kScript, kJob, kReport, kEdited};
        for (const char* name : kHeldNames)
            names.emplace_back(name);
        for (const QString& file : {nameOfMacro(input), Job::mapOf(nameOfMacro(input))})
            names.push_back(QFile::encodeName(file).toStdString());
        return names;
    }

    QString path(const QString& name) const
    {
        return QFile::decodeName(folder_.file(QFile::encodeName(name).toStdString()).c_str());
    }

    void write(const char* name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
            throw PlacingError(file.fileName(), file.errorString());
        file.close();
        if (file.error() != QFileDevice::NoError)
            throw PlacingError(file.fileName(), file.errorString());
    }

    /// A path for a text of JSON: when the file's own cannot stand there, that of a link.
    QString pathForNode(const QString& file, const char* link) const
    {
        QString absolute = QFileInfo(file).absoluteFilePath();
        if (absolute.isValidUtf16())
            return absolute;
        if (symlink(QFile::encodeName(absolute).constData(), QFile::encodeName(path(link)).constData()) != 0)
            throw PlacingError(path(link), qt_error_string(errno));
        return path(link);
    }

    QByteArray jobText() const
    {
        const QJsonObject job{
            {kProgramVersionKey, INKMACRO_VERSION},
            {"input", printable(input_)},
            {"recording", pathForNode(job_.kept, kHeldNames.front())},
            {"macro", job_.macro},
            {"macroName", printable(QFileInfo(edited_.value_or(job_.macro)).fileName())},
            {"map", Job::mapOf(job_.macro)},
            {"report", path(kReport)},
            {"edited", edited_ ? QJsonValue(pathForNode(*edited_, kEdited)) : QJsonValue()},
            {"json", json_},
        };
        return QJsonDocument(job).toJson();
    }

    int runNode(const QStringList& command) const
    {
        int result = 0;
        if (const int error = NodeRun(command).run(result)) {
            complain("no process can be started for node: " + qt_error_string(error));
            return kFailed;
        }
        if (WIFEXITED(result) && WEXITSTATUS(result) <= kFailed)
            return WEXITSTATUS(result);
        complain(QString("verifying %1 came to no end: node %2").arg(input_, endWord(result)));
        return kFailed;
    }

    const QString input_;
    const std::optional<QString> edited_;
    const bool json_;
    const StagingFolder folder_;
    Job job_;
};

} // namespace

int verifyRecording(const QString& input, const std::optional<QString>& edited, bool json)
{
    const QString node = QStandardPaths::findExecutable("node");
    if (node.isEmpty()) {
        complain("verify runs the macro in node, which is not found in PATH; on Debian it is in the package nodejs");
        return kWrongUse;
    }
    if (QFile file(edited.value_or(QString())); edited && !file.open(QIODevice::ReadOnly)) {
        printLine(QString("%1: cannot be opened: %2").arg(*edited, file.errorString()));
        return kUnreadable;
    }
    return orComplainOfFiles([&] { return Verification(input, edited, json).run(node); });
}

} // namespace inkmacro
