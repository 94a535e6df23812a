// The project around a C# macro.
#include "backends/csharp/converter.h"

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtCore/QXmlStreamReader>

namespace
{

QByteArray ContentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

struct CSharpProject : testing::Test
{
    QTemporaryDir folder;
    CZtConverterKVAPICSharp converter{1};
};

TEST_F(CSharpProject, StandsInTheMacrosFolderByteForByte)
{
    const QDir drawings(folder.filePath(QStringLiteral("my/drawings")));
    ASSERT_EQ(converter.WriteProjectFiles(drawings.filePath(QStringLiteral("Wall.v2.cs"))), 5100);

    EXPECT_EQ(drawings.entryList(QDir::Files, QDir::Name), QStringList({"Program.cs", "Wall.csproj"}));
    EXPECT_EQ(ContentOf(drawings.filePath(QStringLiteral("Program.cs"))).toStdString(), R"(using System;

namespace Wall
{
    static class Program
    {
        /// <summary>
       /// The main entry point for the application.
        /// </summary>
       [STAThread]
       static void Main()
       {
           Morvane.Application kvApp = null;
           object application = null;

           try
           {
                application = System.Runtime.InteropServices.Marshal.GetActiveObject("Morvane.Application");
           }
           catch (Exception)
           {
               //application not running
               return;
           }

           if (null != application)
           {
               kvApp = application as Morvane.Application;
           }

           if (null != kvApp)
           {
               KVAPIMacros.Wall WallObj = new KVAPIMacros.Wall();
               WallObj.Run(kvApp);
           }
       }
   }
}
)");
    EXPECT_EQ(ContentOf(drawings.filePath(QStringLiteral("Wall.csproj"))).toStdString(),
              R"(<?xml version="1.0" encoding="utf-8"?>
<Project ToolsVersion="3.5" DefaultTargets="Build" xmlns="http://schemas.microsoft.com/developer/msbuild/2003">
  <PropertyGroup>
    <Configuration Condition=" '$(Configuration)' == '' ">Debug</Configuration>
    <Platform Condition=" '$(Platform)' == '' ">AnyCPU</Platform>
    <ProductVersion>9.0.30729</ProductVersion>
    <SchemaVersion>2.0</SchemaVersion>
    <ProjectGuid>{6599E748-BC93-4CF5-901D-90C14D09EB86}</ProjectGuid>
    <OutputType>WinExe</OutputType>
    <AppDesignerFolder>Properties</AppDesignerFolder>
    <RootNamespace>Wall</RootNamespace>
    <AssemblyName>Wall</AssemblyName>
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
    <Compile Include="Wall.cs" />
    <Compile Include="Program.cs" />
  </ItemGroup>
  <ItemGroup>
    <COMReference Include="Morvane">
      <Guid>{92993D0B-2709-42F5-BA1B-9C224D757856}</Guid>
      <VersionMajor>1</VersionMajor>
      <VersionMinor>0</VersionMinor>
      <Lcid>0</Lcid>
      <WrapperTool>tlbimp</WrapperTool>
      <Isolated>False</Isolated>
    </COMReference>
  </ItemGroup>
  <Import Project="$(MSBuildBinPath)\Microsoft.CSharp.targets" />
  <!-- To modify your build process, add your task inside one of the targets below and uncomment it. )"
              R"(
       Other similar extension points exist, see Microsoft.Common.targets.
  <Target Name="BeforeBuild">
  </Target>
  <Target Name="AfterBuild">
  </Target>
  -->
</Project>)");
}

TEST_F(CSharpProject, IsWellFormed)
{
    QXmlStreamReader xml(converter.WriteProjectFile(QStringLiteral("macro")));
    while (!xml.atEnd())
    {
        xml.readNext();
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
}

TEST_F(CSharpProject, StopsAtTheFirstFileThatCannotBeWritten)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("Program.cs")));
    EXPECT_EQ(converter.WriteProjectFiles(folder.filePath(QStringLiteral("macro.cs"))), -5001);
    EXPECT_FALSE(QFile::exists(folder.filePath(QStringLiteral("macro.csproj"))));
}

} // namespace
