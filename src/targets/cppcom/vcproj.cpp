// The project of the development environment for the COM add-in.

#include "statements/Fill.h"
#include "statements/LineEnd.h"
#include "targets/cppcom/projectTexts.h"
#include "targets/projectFiles.h"

#include <QByteArray>

#include <initializer_list>

using namespace inkmacro;

// %1 is the project, %2 the line end, %3 the project's id. Words in braces are filled in before, from the tables.

static const char* const head = R"(<?xml version="1.0" encoding="windows-1252"?>
<VisualStudioProject
	ProjectType="Visual C++"
	Version="9.00"
	Name="%1"
	ProjectGUID="%3"
	RootNamespace="%1"
	Keyword="Qt4VSv1.0"
	TargetFrameworkVersion="196613"
	>
	<Platforms>
		<Platform
			Name="Win32"
		/>
		<Platform
			Name="x64"
		/>
	</Platforms>
	<ToolFiles>
	</ToolFiles>
	<Configurations>
)";

static const char* const configuration = R"xml(		<Configuration
			Name="{configuration}|{platform}"
			OutputDirectory="{folder}$(ConfigurationName)"
			IntermediateDirectory="{folder}$(ConfigurationName)"
			ConfigurationType="2"
			UseOfMFC="0"
			UseOfATL="2"
			ATLMinimizesCRunTimeLibraryUsage="false"
			CharacterSet="1"
			WholeProgramOptimization="{wholeProgram}"
			>
			<Tool
				Name="VCPreBuildEventTool"
			/>
			<Tool
				Name="VCCustomBuildTool"
			/>
			<Tool
				Name="VCXMLDataGeneratorTool"
			/>
			<Tool
				Name="VCWebServiceProxyGeneratorTool"
			/>
			<Tool
				Name="VCMIDLTool"
				PreprocessorDefinitions="{state}"
				MkTypLibCompatible="false"
				TargetEnvironment="{environment}"
				GenerateStublessProxies="true"
				TypeLibraryName="$(IntDir)/%1.tlb"
				HeaderFileName="%1_i.h"
				DLLDataFileName=""
				InterfaceIdentifierFileName="%1_i.c"
				ProxyFileName="%1_p.c"
			/>
			<Tool
				Name="VCCLCompilerTool"
				Optimization="{optimization}"
				AdditionalIncludeDirectories="..\..\..\..\tlb;..\..\..\..\..\bin"
				PreprocessorDefinitions="{definitions}"
				MinimalRebuild="{minimalRebuild}"
				BasicRuntimeChecks="{checks}"
				ExceptionHandling="1"
				RuntimeLibrary="{runtime}"
				UsePrecompiledHeader="2"
				PrecompiledHeaderThrough="stdafx.h"
				WarningLevel="3"
				DebugInformationFormat="{debugFormat}"
			/>
			<Tool
				Name="VCManagedResourceCompilerTool"
			/>
			<Tool
				Name="VCResourceCompilerTool"
				PreprocessorDefinitions="{state}"
				Culture="1033"
				AdditionalIncludeDirectories="$(IntDir)"
			/>
			<Tool
				Name="VCPreLinkEventTool"
			/>
			<Tool
				Name="VCLinkerTool"
				RegisterOutput="true"
				OutputFile="$(OutDir)\%1.dll"
				LinkIncremental="{incremental}"
				ModuleDefinitionFile=".\%1.def"
				GenerateDebugInformation="true"
				SubSystem="2"
				OptimizeReferences="{references}"
				EnableCOMDATFolding="{references}"
				TargetMachine="{machine}"
			/>
			<Tool
				Name="VCALinkTool"
			/>
			<Tool
				Name="VCManifestTool"
			/>
			<Tool
				Name="VCXDCMakeTool"
			/>
			<Tool
				Name="VCBscMakeTool"
			/>
			<Tool
				Name="VCFxCopTool"
			/>
			<Tool
				Name="VCAppVerifierTool"
			/>
			<Tool
				Name="VCPostBuildEventTool"
			/>
		</Configuration>
)xml";

/// A word of a configuration: what it stands for in the first and in the second of two kinds.
struct Word
{
    const char* word;
    const char* first;
    const char* second;
};

static const Word platformWords[] = {
    {"{platform}", "Win32", "x64"},
    {"{folder}", "", "$(PlatformName)\\"},
    {"{environment}", "1", "3"},
    {"{machine}", "1", "17"},
};

static const Word configurationWords[] = {
    {"{configuration}", "Debug", "Release"},
    {"{wholeProgram}", "0", "1"},
    {"{state}", "_DEBUG", "NDEBUG"},
    {"{definitions}", "WIN32;_WINDOWS;_DEBUG;_USRDLL", "WIN32;_WINDOWS;_USRDLL"},
    {"{optimization}", "0", "2"},
    {"{minimalRebuild}", "true", "false"},
    {"{checks}", "3", "0"},
    {"{runtime}", "3", "2"},
    {"{incremental}", "2", "1"},
    {"{references}", "0", "2"},
};

/// Of the debug information: to edit and continue (/ZI) or only to debug (/Zi). The former is for x86 alone, and no
/// compiler takes it together with the whole-program optimization of Release.
static const char* debugFormat(bool x64, bool release)
{
    return x64 || release ? "3" : "4";
}

/// How the file takes part in the precompiled header; 0 is not at all.
static const char* const fileConfiguration = R"(				<FileConfiguration
					Name="{configuration}|{platform}"
					>
					<Tool
						Name="VCCLCompilerTool"
						UsePrecompiledHeader="{precompiled}"
					/>
				</FileConfiguration>
)";

/// The text once for each configuration and platform.
static QByteArray forEachConfiguration(const char* words)
{
    QByteArray all;
    for (const bool x64 : {false, true}) {
        for (const bool release : {false, true}) {
            QByteArray one(words);
            for (const Word& word : platformWords)
                one.replace(word.word, x64 ? word.second : word.first);
            for (const Word& word : configurationWords)
                one.replace(word.word, release ? word.second : word.first);
            all += one.replace("{debugFormat}", debugFormat(x64, release));
        }
    }
    return all;
}

static QByteArray file(const char* name, const char* precompiled = nullptr)
{
    QByteArray text = QByteArray("\t\t\t<File\n\t\t\t\tRelativePath=\".\\") + name + "\"\n\t\t\t\t>\n";
    if (precompiled)
        text += forEachConfiguration(fileConfiguration).replace("{precompiled}", precompiled);
    return text + "\t\t\t</File>\n";
}

static QByteArray filter(const char* name, const char* extensions, std::initializer_list<QByteArray> files)
{
    QByteArray text = QByteArray("\t\t<Filter\n\t\t\tName=\"") + name + "\"\n";
    if (*extensions)
        text += QByteArray("\t\t\tFilter=\"") + extensions + "\"\n";
    text += "\t\t\t>\n";
    for (const QByteArray& one : files)
        text += one;
    return text + "\t\t</Filter>\n";
}

static QByteArray files()
{
    return filter("Source Files", "cpp;c;cxx;def;odl;idl",
                  {file("%1.cpp"), file("%1.def"), file("%1.idl"), file("%1ps.def"), file("IwAddinConnection.cpp"),
                   file("stdafx.cpp", "1")}) +
           filter("Header Files", "h;hpp;hxx;hm;inl;inc",
                  {file("%1.h"), file("IwAddinConnection.h"), file("resource.h"), file("smartvars.h"), file("stdafx.h"),
                   file("typeconverter.h")}) +
           filter("Resource Files", "rc;ico;cur;bmp;rgs",
                  {file("%1.rc"), file("%1.rgs"), file("IwAddinConnection.rgs")}) +
           filter("Generated Files", "", {file("%1_i.c", "0"), file("%1_i.h")});
}

static const char* const projectFile = R"(		<File
			RelativePath=".\%1.vcproj"
			>
		</File>
)";

static QByteArray project()
{
    return head + forEachConfiguration(configuration) +
           "\t</Configurations>\n\t<References>\n\t</References>\n\t<Files>\n" + files() + projectFile +
           "\t</Files>\n\t<Globals>\n\t</Globals>\n</VisualStudioProject>%2";
}

namespace inkmacro::cppcom {

Statement environmentProject(const QString& name, const QString& projectId)
{
    static const Template words(project().constData());
    return fillProject(words).text(xmlText(name)).text(LineEnd).text(projectId);
}

} // namespace inkmacro::cppcom
