// The start-up module and the project file around a VB.NET macro.

#include "statements/LineEnd.h"
#include "statements/wording.h"

#include <QFileInfo>
#include "targets/comReference.h"
#include "targets/projectFiles.h"
#include "targets/vbnet/CFxConverterIWAPIVbNet.h"

using namespace inkmacro;

// %1 is the project, %2 the line end. One marker for the line end is enough: without any, a marker in the name would
// take its value.

static const char* const program = R"(%2
Module Module1

    Sub Main()

        Dim iwApp As Inkwright.Application
        Dim application As Object

        iwApp = Nothing
        application = Nothing

        Try
            application = System.Runtime.InteropServices.Marshal.GetActiveObject("Inkwright.Application")
            Exit Try
        Catch ex As Exception
            Return
        End Try

        If application IsNot Nothing Then
            iwApp = application
        Else
            Return
        End If

        If iwApp IsNot Nothing Then
            Dim %1Obj As %1
            %1Obj = New %1()
            %1Obj.Run(iwApp)
        End If

    End Sub

End Module
)";

static const char* const projectOpening =
    R"(<?xml version="1.0" encoding="utf-8"?>%2<Project ToolsVersion="3.5" DefaultTargets="Build" xmlns="http://schemas.microsoft.com/developer/msbuild/2003">
  <PropertyGroup>
    <Configuration Condition=" '$(Configuration)' == '' ">Debug</Configuration>
    <Platform Condition=" '$(Platform)' == '' ">AnyCPU</Platform>
    <ProductVersion>9.0.21022</ProductVersion>
    <SchemaVersion>2.0</SchemaVersion>
    <ProjectGuid>{B1E37C1A-66D2-4558-A4B8-D9B9CB0C0220}</ProjectGuid>
    <OutputType>WinExe</OutputType>
    <RootNamespace>%1</RootNamespace>
    <AssemblyName>%1</AssemblyName>
    <MyType>Empty</MyType>
    <TargetFrameworkVersion>v3.5</TargetFrameworkVersion>
    <NoWarn>42016,41999,42017,42018,42019,42032,42036,42020,42021,42022</NoWarn>
    <OptionExplicit>On</OptionExplicit>
    <OptionCompare>Binary</OptionCompare>
    <OptionStrict>Off</OptionStrict>
    <OptionInfer>On</OptionInfer>
  </PropertyGroup>
  <PropertyGroup Condition=" '$(Configuration)|$(Platform)' == 'Debug|AnyCPU' ">
    <DebugSymbols>true</DebugSymbols>
    <DebugType>full</DebugType>
    <DefineDebug>true</DefineDebug>
    <DefineTrace>true</DefineTrace>
    <OutputPath>bin\Debug\</OutputPath>
    <NoWarn>42016,41999,42017,42018,42019,42032,42036,42020,42021,42022</NoWarn>
  </PropertyGroup>
  <PropertyGroup Condition=" '$(Configuration)|$(Platform)' == 'Release|AnyCPU' ">
    <DebugType>pdbonly</DebugType>
    <DefineDebug>false</DefineDebug>
    <DefineTrace>true</DefineTrace>
    <Optimize>true</Optimize>
    <OutputPath>bin\Release\</OutputPath>
    <NoWarn>42016,41999,42017,42018,42019,42032,42036,42020,42021,42022</NoWarn>
  </PropertyGroup>
  <ItemGroup>
    <Reference Include="System" />
  </ItemGroup>
)";

static const char* const projectClosing = R"(  <ItemGroup>
    <Import Include="Microsoft.VisualBasic" />
    <Import Include="System" />
  </ItemGroup>
  <ItemGroup>
    <Compile Include="%1.vb" />
    <Compile Include="Module1.vb" />
  </ItemGroup>
  <Import Project="$(MSBuildToolsPath)\Microsoft.VisualBasic.targets" />
</Project>
)";

Statement CFxConverterIWAPIVbNet::EmitProgramText(const QString& projectName) const
{
    static const Template words(program);
    return fillProject(words).text(identifier(projectName)).text(LineEnd);
}

Statement CFxConverterIWAPIVbNet::EmitProjectText(const QString& projectName, const QString& macroFile) const
{
    QByteArray project = QByteArray(projectOpening) + comReference + projectClosing;
    if (writer.repairs)
        project.replace("%1.vb", "%3");
    const Template words(project.constData());
    return fillProject(words).text(xmlText(identifier(projectName))).text(LineEnd).text(xmlText(macroFile));
}

std::int32_t CFxConverterIWAPIVbNet::EmitProjectFiles(const QString& path)
{
    const QString name = projectName(path);
    return WriteProject(
        path, {{"Module1.vb", EmitProgramText(name), false}, {name + ".vbproj", EmitProjectText(name, QFileInfo(path).fileName()), false}});
}
