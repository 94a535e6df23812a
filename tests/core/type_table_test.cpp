// The object types and the supported classes, and where the two differ.
#include "core/type_table.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace
{
TEST(ObjectTypes, AreSoundAndFound)
{
    const auto types = kv::ObjectTypes();
    ASSERT_EQ(types.size(), 50u);
    std::set<QString> classes;
    std::set<QString> words;
    for (const kv::ObjectType& type : types)
    {
        EXPECT_TRUE(classes.insert(type.className).second) << qPrintable(type.className);
        words.insert(type.word);
        EXPECT_EQ(kv::FindObjectType(type.className), &type) << qPrintable(type.className);
        EXPECT_TRUE(type.className.startsWith("AcDb")) << qPrintable(type.className);
        const QString named = type.word == "Note" ? QString("SimpleNote") : type.word;
        EXPECT_EQ(type.constant, "kv" + named + "Type");
    }
    // Only the two polylines and the two angular dimensions share a word.
    EXPECT_EQ(words.size(), 48u);
}

TEST(ObjectTypes, StandInTheOrderOfTheList)
{
    const auto types = kv::ObjectTypes();
    EXPECT_EQ(types.front().className, "AcDbLine");
    EXPECT_EQ(types[10].className, "AcDbMText");
    EXPECT_EQ(types[26].className, "AcDb2dPolyline");
    EXPECT_EQ(types[39].className, "AcDbRadialDimensionLarge");
    EXPECT_EQ(types.back().className, "AcDbViewportTableRecord");
}

TEST(ObjectTypes, HaveWordsUnlikeTheirClasses)
{
    const std::map<QString, QString> words{
        {"AcDbArc", "CircleArc"},
        {"AcDbXline", "InfiniteLine"},
        {"AcDbText", "SimpleNote"},
        {"AcDbMText", "Note"},
        {"AcDbMline", "RichLine"},
        {"AcDbFcf", "Tolerance"},
        {"AcDbOle2Frame", "EmbeddedObject"},
        {"AcDb3dPolyline", "PolyLine3D"},
        {"AcDbPolyline", "PolyLine"},
        {"AcDb2dPolyline", "PolyLine"},
        {"AcDbBlockTableRecord", "BlockDefinition"},
        {"AcDb3PointAngularDimension", "AngularDimension"},
        {"AcDbRadialDimensionLarge", "JoggedDimension"},
        {"AcDbLinetypeTableRecord", "LineStyle"},
        {"AcDbViewTableRecord", "ModelNamedView"},
        {"AcDbViewportTableRecord", "ViewTile"},
        {"AcDbViewport", "Viewport"},
    };
    for (const auto& [className, word] : words)
    {
        const kv::ObjectType* type = kv::FindObjectType(className);
        ASSERT_NE(type, nullptr) << qPrintable(className);
        EXPECT_EQ(type->word, word) << qPrintable(className);
    }
    EXPECT_EQ(kv::FindObjectType("acdbline"), nullptr);
    EXPECT_EQ(kv::FindObjectType("AcDbEntity"), nullptr);
    EXPECT_EQ(kv::FindObjectType(QString()), nullptr);
}

TEST(SupportedClasses, DifferFromTheTypesInThreeNames)
{
    for (const kv::ObjectType& type : kv::ObjectTypes())
    {
        EXPECT_EQ(kv::IsSupportedClass(type.className), type.className != "AcDb2dPolyline")
            << qPrintable(type.className);
    }
    for (const char* className : {"AcDbViewTable", "AcDbLayerTable"})
    {
        EXPECT_TRUE(kv::IsSupportedClass(className)) << className;
        EXPECT_EQ(kv::FindObjectType(className), nullptr) << className;
    }
    for (const char* className : {"AcDbBlockTable", "AcDbViewportTable", "AcDbEntity", "acdbline", "AcDbLine ", ""})
    {
        EXPECT_FALSE(kv::IsSupportedClass(className)) << className;
    }
}
} // namespace
