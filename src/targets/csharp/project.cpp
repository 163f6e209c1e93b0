// The start-up program and the project file around a C# macro.

#include "statements/LineEnd.h"
#include "statements/wording.h"

#include <QFileInfo>
#include "targets/comReference.h"
#include "targets/csharp/CFxConverterIWAPICSharp.h"
#include "targets/projectFiles.h"

using namespace inkmacro;

// %1 is the project, %2 the line end. One marker for the line end is enough: without any, a marker in the name would
// take its value.

/// The macro's class lives in a namespace of its own, which is why the call is qualified.
static const char* const program =
    "using System;%2%2namespace %1%2{%2    static class Program%2    {%2        /// <summary>%2"
    "       /// The main entry point for the application.%2        /// </summary>%2       [STAThread]%2"
    "       static void Main()%2       {%2           Inkwright.Application iwApp = null;%2"
    "           object application = null;%2%2           try%2           {%2"
    "                application = System.Runtime.InteropServices.Marshal.GetActiveObject(\"Inkwright.Application\");%2"
    "           }%2           catch (Exception)%2           {%2               //application not running%2"
    "               return;%2           }%2%2           if (null != application)%2           {%2"
    "               iwApp = application as Inkwright.Application;%2           }%2%2           if (null != iwApp)%2"
    "           {%2               IWAPIMacros.%1 %1Obj = new IWAPIMacros.%1();%2               %1Obj.Run(iwApp);%2"
    "           }%2       }%2   }%2}%2";

static const char* const projectOpening =
    R"(<?xml version="1.0" encoding="utf-8"?>%2<Project ToolsVersion="3.5" DefaultTargets="Build" xmlns="http://schemas.microsoft.com/developer/msbuild/2003">
  <PropertyGroup>
    <Configuration Condition=" '$(Configuration)' == '' ">Debug</Configuration>
    <Platform Condition=" '$(Platform)' == '' ">AnyCPU</Platform>
    <ProductVersion>9.0.30729</ProductVersion>
    <SchemaVersion>2.0</SchemaVersion>
    <ProjectGuid>{6599E748-BC93-4CF5-901D-90C14D09EB86}</ProjectGuid>
    <OutputType>WinExe</OutputType>
    <AppDesignerFolder>Properties</AppDesignerFolder>
    <RootNamespace>%1</RootNamespace>
    <AssemblyName>%1</AssemblyName>
    <TargetFrameworkVersion>v3.5</TargetFrameworkVersion>
    <FileAlignment>512</FileAlignment>
  </PropertyGroup>
  <PropertyGroup Condition=" '$(Configuration)|$(Platform)' == 'Debug|AnyCPU' ">
    <DebugSymbols>true</DebugSymbols>
    <DebugType>full</DebugType>
    <Optimize>false</Optimize>
    <OutputPath>bin\Debug\</OutputPath>
    <DefineConstants>DEBUG;TRACE</DefineConstants>
    <ErrorReport>prompt</ErrorReport>
    <WarningLevel>4</WarningLevel>
  </PropertyGroup>
  <PropertyGroup Condition=" '$(Configuration)|$(Platform)' == 'Release|AnyCPU' ">
    <DebugType>pdbonly</DebugType>
    <Optimize>true</Optimize>
    <OutputPath>bin\Release\</OutputPath>
    <DefineConstants>TRACE</DefineConstants>
    <ErrorReport>prompt</ErrorReport>
    <WarningLevel>4</WarningLevel>
  </PropertyGroup>
  <ItemGroup>
    <Reference Include="System" />
  </ItemGroup>
  <ItemGroup>
    <Compile Include="%1.cs" />
    <Compile Include="Program.cs" />
  </ItemGroup>
)";

static const char* const projectClosing = R"(  <Import Project="$(MSBuildBinPath)\Microsoft.CSharp.targets" />
  <!-- To modify your build process, add your task inside one of the targets below and uncomment it.
       Other similar extension points exist, see Microsoft.Common.targets.
  <Target Name="BeforeBuild">
  </Target>
  <Target Name="AfterBuild">
  </Target>
  -->
</Project>
)";

Statement CFxConverterIWAPICSharp::EmitProgramText(const QString& projectName) const
{
    static const Template words(program);
    return fillProject(words).text(identifier(projectName)).text(LineEnd);
}

Statement CFxConverterIWAPICSharp::EmitProjectText(const QString& projectName, const QString& macroFile) const
{
    QByteArray project = QByteArray(projectOpening) + comReference + projectClosing;
    if (writer.repairs)
        project.replace("%1.cs", "%3");
    const Template words(project.constData());
    return fillProject(words).text(xmlText(identifier(projectName))).text(LineEnd).text(xmlText(macroFile));
}

std::int32_t CFxConverterIWAPICSharp::EmitProjectFiles(const QString& path)
{
    const QString name = projectName(path);
    return WriteProject(
        path, {{"Program.cs", EmitProgramText(name), false}, {name + ".csproj", EmitProjectText(name, QFileInfo(path).fileName()), false}});
}
