// A recording as a page: the drawing, the steps, and the macros of all targets in both forms.

#include "app/viewing.h"

#include "app/ExitStatus.h"
#include "app/FilePrint.h"
#include "app/ProgressLine.h"
#include "app/StagedResult.h"
#include "app/console.h"
#include "app/earlyEnd.h"
#include "app/heldRecording.h"
#include "app/pageMacros.h"
#include "app/processes.h"
#include "app/reading.h"
#include "app/temporaryFolder.h"
#include "app/valueText.h"
#include "view/PageFile.h"
#include "view/pictureIslands.h"
#include "view/pictureOf.h"
#include "view/svg.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QTemporaryFile>

#include <algorithm>
#include <list>

namespace inkmacro {

namespace {

constexpr qint64 kLargePage = 200'000'000; ///< bytes, from which on not every browser opens it

QString printedName(const QString& input)
{
    return input == "-" ? QStringLiteral("standard input") : input;
}

/// Where the result goes to when nobody says it: no macro has such a name.
QString outputOf(const CommandLine& line)
{
    const QString name = baseNameOf(line.files.front()) + (line.svg ? ".svg" : ".view.html");
    if (!line.output)
        return name;
    if (*line.output != "-" && (line.output->endsWith('/') || QFileInfo(*line.output).isDir()))
        return QDir(*line.output).filePath(name);
    return *line.output;
}

/// Puts what `write` gives to a file of that name, or to standard output, and gives its size. Raises PlacingError.
template<class Write>
qint64 put(const QString& output, Write write)
{
    const bool prints = output == "-";
    std::optional<StagedResult> result;
    QTemporaryFile kept;
    QFile placed;
    if (prints && !kept.open())
        throw PlacingError("a temporary file", kept.errorString());
    if (!prints) {
        result.emplace(QStringList(output));
        placed.setFileName(result->firstFile());
        if (!placed.open(QIODevice::WriteOnly))
            throw PlacingError(output, placed.errorString());
    }
    QFile& file = prints ? static_cast<QFile&>(kept) : placed;
    write(file);
    if (!file.flush() || file.error() != QFileDevice::NoError)
        throw PlacingError(output, file.errorString());
    const qint64 size = file.size();
    if (prints) {
        constexpr int piece = 1 << 20;
        for (kept.seek(0); !kept.atEnd();)
            printOut(kept.read(piece));
    } else {
        file.close();
        for (const QString& path : result->place())
            printOut(path + '\n');
    }
    return size;
}

view::Picture pictureIn(const Recording& recording)
{
    const auto& sheet = recording.header.sheet;
    return view::pictureOf(*recording.database, recording.actions,
                           {.sheet = sheet && !sheet->model ? sheet->name : QString(),
                            .context = static_cast<CFxValueContext>(recording.header.context)});
}

class Viewing
{
public:
    /// Raises std::system_error.
    explicit Viewing(const CommandLine& line)
        : line_(line),
          input_(line.files.front()),
          output_(outputOf(line)),
          folder_(temporaryFolder(), std::vector<std::string>(kHeldNames.begin(), kHeldNames.end()))
    {
    }

    /// Raises PlacingError.
    int run()
    {
        if (isSameFile(input_, output_))
            throw WrongUse(QString("%1 would overwrite the recording %2").arg(output_, input_));
        if (line_.macro && isSameFile(*line_.macro, output_))
            throw WrongUse(QString("%1 would overwrite the macro").arg(output_));
        if (const QString refusal = output_ == "-" ? QString() : refusalOf({output_}); !refusal.isEmpty())
            throw WrongUse("--output: " + refusal);
        const std::optional<QString> held = holdRecording(input_, folder_);
        if (!held)
            return kUnreadable;
        held_ = *held;
        return line_.svg ? drawPicture() : makePage();
    }

private:
    /// Never destroyed: the end of the process gives the memory back at once. Null when it cannot be read, which is
    /// told.
    const Recording* read() const
    {
        static Recording& recording = *new Recording;
        std::optional<dxf::Accounts> drawing;
        const QString error = readRecording(input_, recording, drawing, held_);
        if (!error.isEmpty())
            printLine(error);
        return error.isEmpty() ? &recording : nullptr;
    }

    int drawPicture() const
    {
        nameWork("drawing " + input_);
        const Recording* const recording = read();
        if (!recording)
            return kUnreadable;
        const view::Picture picture = pictureIn(*recording);
        const auto isAsked = [this](const view::Space& space) {
            return !line_.space || space.name.compare(*line_.space, Qt::CaseInsensitive) == 0;
        };
        auto space = picture.spaces.begin() + (line_.space ? 0 : picture.firstSpace);
        space = std::find_if(space, picture.spaces.end(), isAsked);
        if (space == picture.spaces.end()) {
            QStringList names;
            for (const view::Space& one : picture.spaces)
                names.append(printable(one.name));
            throw WrongUse(
                QString("--space: there is no \"%1\" in the recording, but %2").arg(*line_.space, names.join(", ")));
        }
        const QByteArray svg =
            view::svgOf(picture, static_cast<std::uint16_t>(space - picture.spaces.begin()), baseNameOf(input_));
        put(output_, [&svg](QIODevice& file) { file.write(svg); });
        return kDone;
    }

    /// False, with a message, when there is no macro in the file.
    bool readEdited(QByteArray& macro) const
    {
        QFile file(*line_.macro);
        if (!file.open(QIODevice::ReadOnly)) {
            printLine(QString("%1: cannot be opened: %2").arg(*line_.macro, file.errorString()));
            return false;
        }
        // Who reads what is no UTF-8 makes different texts of it, and a browser has to run the very one that it shows.
        const QByteArray bytes = file.readAll();
        macro = QString::fromUtf8(bytes.constData(), bytes.size()).toUtf8();
        if (!view::scriptOfMacro(macro).isEmpty())
            return true;
        printLine(
            QString("%1: no <script type=\"text/javascript\"> is found, in which a macro stands").arg(*line_.macro));
        return false;
    }

    int makePage()
    {
        QByteArray edited;
        if (line_.macro && !readEdited(edited))
            return kUnreadable;
        nameWork("viewing " + input_);
        const int status = convert();
        if (status == kUnreadable)
            return status;
        const Recording* const recording = read();
        if (!recording)
            return kUnreadable;
        if (put(output_, [&](QIODevice& file) { writePage(*recording, edited, file); }) > kLargePage)
            complain(QString("the page has more than %1, which not every browser opens; --target limits the macros "
                             "that are in it")
                         .arg(megabytes(kLargePage)));
        return status;
    }

    /// Has all macros written, each in a folder of its own, since projects share names of files.
    int convert()
    {
        std::vector<const TargetRow*> rows = line_.targets;
        if (rows.empty())
            for (const TargetRow& row : targetTable)
                rows.push_back(&row);
        std::vector<Job> jobs;
        for (const TargetRow* row : rows)
            for (const bool repaired : {false, true})
                jobs.push_back(jobFor(*row, repaired));
        jobs_ = std::move(jobs);
        std::vector<PageMacro> macros;
        Telling telling;
        telling.report = ReportForm::Json;
        telling.quiet = true;
        HostSettings host;
        host.sameIdentifiers = true;
        const int status = convertInProcesses(
            jobs_, host, telling, [&macros](const Job& job, std::unique_ptr<ReportPart> part, const Outcome& outcome) {
                if (part && !part->beginReading())
                    part.reset();
                const Outcome known = part ? part->outcome() : outcome;
                macros.push_back({&job, std::move(part), known});
            });
        for (std::size_t i = 0; i + 1 < macros.size(); i += 2)
            targets_.push_back({macros[i].job->target, std::move(macros[i]), std::move(macros[i + 1])});
        return status;
    }

    /// Macros of a page have no files, so a name that some project cannot hold is no reason to have none.
    QString nameForMacros() const
    {
        static const QRegularExpression unfit(R"(["\\\x00-\x1F\x7F]|\?\?|\$\()");
        return input_.isValidUtf16() ? QFileInfo(input_).fileName().replace(unfit, "_") : QStringLiteral("-");
    }

    Job jobFor(const TargetRow& row, bool repaired)
    {
        const QString name = macroName(nameForMacros(), row);
        Job job{.input = input_, .target = &row, .macro = name, .hasSteps = true, .repaired = repaired, .kept = held_};
        std::vector<std::string> names;
        for (const QString& file : job.files())
            names.push_back(QFile::encodeName(file).toStdString());
        const StagingFolder& home = homes_.emplace_back(temporaryFolder(), names);
        job.macro = QFile::decodeName(home.file(QFile::encodeName(name).toStdString()).c_str());
        job.home = &home;
        return job;
    }

    void writePage(const Recording& recording, const QByteArray& edited, QIODevice& file) const
    {
        const view::Steps steps(recording.actions);
        const StepPlaces places(steps, recording.actionLines);
        const view::Picture picture = pictureIn(recording);
        const PageNotes notes(targets_, places);
        QJsonObject index = headOf(steps, picture, recording);

        view::PageFile page(file, baseNameOf(input_), plainPage(index, notes), macroScripts(edited));
        view::ClassNames classes;
        addPicture(picture, classes, page, index);
        addSteps(steps, places, madeObjects(), picture, classes, page, index);
        index.insert("classes", classes.list());
        page.addIsland("recording", readWhole(held_));
        for (const PageTarget& target : targets_)
            addMacros(target, page, index);
        index.insert("notes", notes.notes());
        index.insert("targets", line_.macro ? withEdited(notes.targets()) : notes.targets());
        if (line_.macro)
            page.addIsland("macro.javascript.edited", edited);
        page.addIsland("index", QJsonDocument(index).toJson(QJsonDocument::Compact));
        page.finish();
    }

    QJsonObject headOf(const view::Steps& steps, const view::Picture& picture, const Recording& recording) const
    {
        const auto commands = std::count_if(steps.begin(), steps.end(), [](const view::Steps::Step& step) {
            return step.kind == view::Steps::Kind::Command;
        });
        const auto added = std::count_if(steps.begin(), steps.end(), [](const view::Steps::Step& step) {
            return step.kind == view::Steps::Kind::Added;
        });
        const auto notDrawn =
            std::count_if(picture.objects.begin(), picture.objects.end(),
                          [](const view::PictureObject& object) { return object.hasGeometry && !object.isDrawn; });
        return {{"version", INKMACRO_VERSION},
                {"name", baseNameOf(input_)},
                {"input", QFileInfo(printedName(input_)).fileName()},
                {"lines", recording.actionLines.empty() ? 0 : recording.actionLines.back()},
                {"counts", QJsonObject{{"commands", static_cast<qint64>(commands)},
                                       {"steps", static_cast<qint64>(steps.size())},
                                       {"objects", static_cast<qint64>(added)},
                                       {"notDrawn", static_cast<qint64>(notDrawn)}}}};
    }

    static QString plainPage(const QJsonObject& head, const PageNotes& notes)
    {
        const QJsonObject counts = head["counts"].toObject();
        const QStringList parts{counted(counts["commands"].toInt(), "command", "commands"),
                                counted(counts["objects"].toInt(), "object", "objects")};
        return "<h1>" + view::escapedForPage(head["name"].toString()) + "</h1>\n<p>" +
               view::escapedForPage(head["input"].toString() + ": " + parts.join(", ")) +
               ". The page shows more in a browser that runs its scripts: Chrome or Edge from 93 on, Firefox from 113 "
               "on, Safari from 16.4 on.</p>\n" +
               notes.table();
    }

    std::vector<QByteArray> macroScripts(const QByteArray& edited) const
    {
        std::vector<QByteArray> scripts;
        const auto add = [&scripts](const QByteArray& macro) {
            if (const QByteArray script = view::scriptOfMacro(macro); !script.isEmpty())
                scripts.push_back(script);
        };
        for (const PageTarget& target : targets_)
            if (target.row->target == Target::JavaScript)
                for (const PageMacro* macro : {&target.recorded, &target.repaired})
                    if (macro->outcome.status == kDone)
                        add(readWhole(macro->job->macro));
        add(edited);
        return scripts;
    }

    /// The JavaScript macro has a third form.
    QJsonArray withEdited(QJsonArray targets) const
    {
        for (QJsonValueRef value : targets) {
            QJsonObject target = value.toObject();
            if (target["name"] != "javascript")
                continue;
            QJsonObject forms = target["forms"].toObject();
            forms.insert("edited", QJsonObject{{"status", kDone},
                                               {"error", ""},
                                               {"notes", QJsonValue()}, // nobody has looked for them
                                               {"faults", QJsonValue()},
                                               {"hasMap", false},
                                               {"text", "macro.javascript.edited"},
                                               {"file", QFileInfo(*line_.macro).fileName()}});
            target.insert("forms", forms);
            value = target;
        }
        return targets;
    }

    std::vector<StepMap::Made> madeObjects() const
    {
        std::vector<StepMap::Made> made;
        for (const PageTarget& target : targets_)
            if (made.empty() && target.repaired.outcome.status == kDone)
                made = readStepMap(Job::stepsOf(target.repaired.job->macro)).made;
        return made;
    }

    const CommandLine& line_;
    const QString input_;
    const QString output_;
    const StagingFolder folder_; ///< for what has to be kept of the input
    QString held_;               ///< the recording's file
    std::list<StagingFolder> homes_;
    std::vector<Job> jobs_;
    std::vector<PageTarget> targets_;
};

} // namespace

int viewRecording(const CommandLine& line)
{
    return orComplainOfFiles([&line] { return Viewing(line).run(); });
}

} // namespace inkmacro
