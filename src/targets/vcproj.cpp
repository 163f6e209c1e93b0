// What the project files for Visual C++ have in common.

#include "targets/vcproj.h"

#include "targets/projectFiles.h"

#include <QRegularExpression>

#include <initializer_list>
#include <iterator>

namespace inkmacro {

const Fault kUnfound{"EmitFileHeader",
                     {Target::Cpp, Target::CppCom},
                     "no #include or project finds a file whose name has a quotation mark, a backslash, a control "
                     "character, a trigraph or $( in it, or is no UTF-8",
                     false};

bool isFound(const QString& fileName)
{
    static const QRegularExpression misread(R"(["\\\x00-\x1F\x7F]|\?\?[='()!<>-]|\$\()");
    return isXmlName(fileName) && !fileName.contains(misread);
}

static QByteArray emptyTools(std::initializer_list<const char*> names)
{
    QByteArray tools;
    for (const char* const name : names)
        tools.append("\t\t\t<Tool\n\t\t\t\tName=\"").append(name).append("\"\n\t\t\t/>\n");
    return tools;
}

QByteArray forEachConfiguration(const char* text, std::span<const ConfigurationWord> words)
{
    const QByteArray common =
        QByteArray(text)
            .replace("{toolsBefore}\n", emptyTools({"VCPreBuildEventTool", "VCCustomBuildTool",
                                                    "VCXMLDataGeneratorTool", "VCWebServiceProxyGeneratorTool"}))
            .replace("{toolsBehind}\n", emptyTools({"VCALinkTool", "VCManifestTool", "VCXDCMakeTool", "VCBscMakeTool",
                                                    "VCFxCopTool", "VCAppVerifierTool", "VCPostBuildEventTool"}));
    QByteArray all;
    for (std::size_t which = 0; which < std::size(ConfigurationWord{}.meanings); ++which) {
        QByteArray one = common;
        for (const ConfigurationWord& word : words)
            one.replace(word.word, word.meanings[which]);
        all += one;
    }
    return all;
}

} // namespace inkmacro
