// The project file of the add-in around a C++ macro.

#include "statements/LineEnd.h"
#include "targets/cpp/CFxConverterIWAPICPP.h"
#include "targets/installation.h"
#include "targets/projectFiles.h"

using namespace inkmacro;

// %1 is the project, %2 the line end, %3 the library directory and %4 the include directory. The first line ends in the
// marker and the others in line feeds: as long as there is one, each value gets its place.

static const char* const opening = R"(<?xml version="1.0" encoding="windows-1252"?>%2<VisualStudioProject
	ProjectType="Visual C++"
	Version="9.00"
	Name="%1"
	ProjectGUID="{8FBE8FD7-7EED-4D16-9316-FA646341A656}"
	RootNamespace="Reactors"
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
			Name="{name}"
			OutputDirectory="$(PlatformName)\$(ConfigurationName)"
			IntermediateDirectory="$(PlatformName)\$(ConfigurationName)"
			ConfigurationType="2"
			UseOfMFC="0"
			UseOfATL="0"
			CharacterSet="1"
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
				TargetEnvironment="{environment}"
				TypeLibraryName="$(IntDir)/IwAddinStub.tlb"
				HeaderFileName="IwAddinStub.h"
				InterfaceIdentifierFileName="IwAddinStub_i.c"
				ProxyFileName="IwAddinStub_p.c"
			/>
			<Tool
				Name="VCCLCompilerTool"
				Optimization="0"
				AdditionalIncludeDirectories="&quot;%4&quot;"
				PreprocessorDefinitions="UNICODE;NDEBUG;IW_WIN;IwAddin_LIB"
				ExceptionHandling="1"
				RuntimeLibrary="{runtime}"
				UsePrecompiledHeader="0"
				PrecompiledHeaderThrough="stdafx.h"
				WarningLevel="3"
{warnings}				DebugInformationFormat="{debugFormat}"
			/>
			<Tool
				Name="VCManagedResourceCompilerTool"
			/>
			<Tool
				Name="VCResourceCompilerTool"
			/>
			<Tool
				Name="VCPreLinkEventTool"
			/>
			<Tool
				Name="VCLinkerTool"
				AdditionalDependencies="iwInterface.lib iwLibrary.lib"
				OutputFile="$(OutDir)\%1.dll"
				AdditionalLibraryDirectories="&quot;%3&quot;"
				ModuleDefinitionFile="%1.def"
				GenerateDebugInformation="true"
				SubSystem="2"
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

static const char* const sources = R"(	</Configurations>
	<References>
	</References>
	<Files>
		<Filter
			Name="Source Files"
			Filter="cpp;c;cc;cxx;def;odl;idl;hpj;bat;asm;asmx"
			>
			<File
				RelativePath=".\iwAddinConnection.cpp"
				>
			</File>
			<File
				RelativePath=".\%1.cpp"
				>
			</File>
		</Filter>
		<Filter
			Name="Header Files"
			Filter="h;hpp;hxx;hm;inl;inc;xsd"
			>
)";

static const char* const headerOpening = R"(			<File
				RelativePath=".\{file}"
				>
)";

/// Nothing is built from a header; the entry is empty.
static const char* const headerConfiguration = R"(				<FileConfiguration
					Name="{name}"
					>
					<Tool
						Name="VCCustomBuildTool"
						CommandLine=""
						AdditionalDependencies=""
						Outputs=""
					/>
				</FileConfiguration>
)";

static const char* const headerClosing = R"(			</File>
)";

static const char* const closing = R"xml(			<File
				RelativePath=".\%1.h"
				>
			</File>
		</Filter>
		<File
			RelativePath=".\%1.def"
			>
		</File>
	</Files>
	<Globals>
		<Global
			Name="QtVersion Win32"
			Value="$(DefaultQtVersion)"
		/>
		<Global
			Name="QtVersion x64"
			Value="4.7.4_x64"
		/>
	</Globals>
</VisualStudioProject>
)xml";

namespace {

struct Configuration
{
    const char* name;
    const char* environment;
    const char* runtime;
    const char* warnings;
    const char* debugFormat;
    const char* machine;
};

constexpr Configuration configurations[] = {
    {"Debug|Win32", "1", "3", "", "4", "1"},
    {"Debug|x64", "3", "3", "\t\t\t\tWarnAsError=\"true\"\n", "3", "17"},
    {"Release|Win32", "1", "2", "", "4", "1"},
    {"Release|x64", "3", "2", "", "3", "17"},
};

QByteArray configurationWords(const Configuration& row)
{
    return QByteArray(configuration)
        .replace("{name}", row.name)
        .replace("{environment}", row.environment)
        .replace("{runtime}", row.runtime)
        .replace("{warnings}", row.warnings)
        .replace("{debugFormat}", row.debugFormat)
        .replace("{machine}", row.machine);
}

QByteArray projectWords()
{
    QByteArray words(opening);
    for (const Configuration& row : configurations)
        words += configurationWords(row);
    words += sources;
    for (const char* const file : {"IwAddin_global.h", "iwAddinConnection.h"}) {
        words += QByteArray(headerOpening).replace("{file}", file);
        for (const Configuration& row : configurations)
            words += QByteArray(headerConfiguration).replace("{name}", row.name);
        words += headerClosing;
    }
    return words += closing;
}

} // namespace

Statement CFxConverterIWAPICPP::EmitProjectText(const QString& projectName) const
{
    static const Template words(projectWords().constData());
    return fillProject(words)
        .text(xmlText(projectName))
        .text(LineEnd)
        .text(xmlText(installedPath("APISDK\\lib\\cpp")))
        .text(xmlText(installedPath("APISDK\\headers\\cpp")));
}
