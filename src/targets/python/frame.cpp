// The Python file around the functions.

#include "host/kernel/CFxServices.h"
#include "statements/RecordingState.h"
#include "statements/pythonLiterals.h"
#include "targets/projectFiles.h"
#include "targets/python/CFxConverterIWAPIPython.h"
#include "targets/python/layout.h"
#include "targets/python/names.h"
#include "targets/texts.h"

#include <QFileInfo>

using namespace inkmacro;

/// Such a name says which recording it is, and a program which imports the file how.
static QString docstring(const QString& name)
{
    const QString title = pythonComment(name);
    QString text = "\"\"\"Repeats the recording " + title + " in the open drawing of Inkwright.\n\n" +
                   "Each function repeats one command; its parameters are what the user answered.";
    if (python::isModuleName(name) && title == name)
        text += QString(" So\nanother program can call them with other values:\n\n"
                        "    drawing = %1.connect()\n    %1.FUNCTION(drawing, PARAMETER=VALUE)")
                    .arg(name);
    return text + "\n\nWritten by inkmacro. Needs Windows, pywin32 and a running Inkwright.\n\"\"\"\n\n";
}

QString CFxConverterIWAPIPython::sketchManager() const
{
    static const QString indentation(8, ' ');
    QString ofModel = indentation + "self.sketch = self.model.GetSketchManager()\n";
    if (RecordingInModel || RecordingSheetName.isEmpty())
        return ofModel;
    const QString sheet = pythonText(RecordingSheetName.toQString());
    return python::laidOut(QString("self.sheet = self.doc.GetSheet(" + sheet + ')'), 8) +
           QString::fromLatin1(texts::python::sheet);
}

Statement CFxConverterIWAPIPython::EmitFileHeader(const QString&, bool)
{
    name_ = QFileInfo(macroPath()).completeBaseName();
    if (python::hidesModule(name_))
        GetFxSystemServices()->ReportProblem(
            name_ + ".py has the name of a module that it imports and does not run until it is given another one");
    writer.IndentLevel += 1;
    return docstring(name_) + QString::fromLatin1(texts::python::head) + sketchManager() +
           QString::fromLatin1(texts::python::connect);
}

Statement CFxConverterIWAPIPython::EmitFileFooter()
{
    writer.lowerLevel();
    const QString start = "def main():\n    try:\n        drawing = connect()\n    except RuntimeError as error:\n";
    const QString name = pythonText(QString(name_ + ": "));
    return start + python::laidOut(QString("return " + name + " + str(error)"), 8) +
           "    drawing.app.AbortRunningCommand()\n" + functions_.calls() + QString::fromLatin1(texts::python::foot);
}

std::int32_t CFxConverterIWAPIPython::EmitProjectFiles(const QString& path)
{
    const bool isModule = python::isModuleName(name_);
    Statement project = fillProject(texts::python::pyproject_toml, {python::distributionName(name_)});
    if (isModule)
        project += fillProject(texts::python::modules_toml, {name_});
    return WriteProject(path, {{"pyproject.toml", std::move(project), false}});
}
