// The enumeration constants: every table answers, in every form, with its default where there is no row.
#include "backends/text/enumerations.h"

#include "backends/text/enumeration_tables.h"

#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QTranslator>

#include <map>
#include <memory>
#include <set>

namespace
{
using kv::EnumForm;
using kv::EnumKind;

constexpr int noSuchNumber = 1000;
const QString noSuchWord = "no such word";

std::string Bare(EnumKind kind, int number)
{
    return kv::EnumConstant(EnumForm::Bare, kind, number).toStdString();
}

std::string Bare(EnumKind kind, const char* word)
{
    return kv::EnumConstant(EnumForm::Bare, kind, QString(word)).toStdString();
}

/// The last part of the constant that a display word suggests, in lower case.
QString NameSuggestedBy(QString word)
{
    return word.replace("1'-0\" = 1'-0\"", "1ft_1ft")
        .replace("\" = 1'-0\"", "in_1ft")
        .replace('/', '_')
        .replace(':', '_')
        .remove(' ')
        .replace("Quadratic", "Qudratic") // the API's spelling
        .toLower();
}

/// Puts every word of a context into a language of its own: the word with a mark behind it.
class MarkingTranslator : public QTranslator
{
public:
    Q_DISABLE_COPY(MarkingTranslator)
    explicit MarkingTranslator(const char* context) : m_context(context) { QCoreApplication::installTranslator(this); }
    ~MarkingTranslator() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* key, const char*, int) const override
    {
        return m_context == context ? QString(key) + "*" : QString();
    }

private:
    QByteArray m_context;
};

/// A translator is asked only while an application object lives.
class EnumTranslations : public testing::Test
{
private:
    int m_count = 1;
    char m_name[5] = "test";
    char* m_arguments[2] = {m_name, nullptr};
    std::unique_ptr<QCoreApplication> m_application =
        QCoreApplication::instance() == nullptr ? std::make_unique<QCoreApplication>(m_count, m_arguments) : nullptr;
};

TEST(EnumTables, AnswerOnlyTheirSortOfValueAndNeverWithNothing)
{
    std::map<std::size_t, int> sorts;
    for (int i = 0; i < 34; ++i)
    {
        const auto kind = static_cast<EnumKind>(i);
        const kv::EnumTable& table = kv::EnumTables()[i];
        const QString prefix =
            QString(table.enumeration) + "." + (i == 0 ? "kvLnWt" : QString(table.enumeration).chopped(2)) + "_";
        const QString answers[] = {kv::EnumConstant(EnumForm::Qualified, kind, noSuchNumber),
                                   kv::EnumConstantOfFlag(EnumForm::Qualified, kind, true),
                                   kv::EnumConstant(EnumForm::Qualified, kind, noSuchWord)};
        ++sorts[table.rows.index()];
        for (std::size_t sort = 0; sort < std::size(answers); ++sort)
        {
            EXPECT_EQ(answers[sort].isEmpty(), sort != table.rows.index()) << table.enumeration;
        }
        EXPECT_TRUE(answers[table.rows.index()].startsWith(prefix)) << table.enumeration;

        std::visit(
            [&](const auto rows)
            {
                for (const auto& row : rows)
                {
                    EXPECT_TRUE((QString(table.enumeration) + "." + row.constant).startsWith(prefix)) << row.constant;
                }
            },
            table.rows);
    }
    EXPECT_EQ(sorts, (std::map<std::size_t, int>{{0, 22}, {1, 1}, {2, 11}}));
}

TEST(EnumTables, GiveTheirOwnConstantForEveryRow)
{
    for (std::size_t i = 0; i < kv::EnumTables().size(); ++i)
    {
        const auto kind = static_cast<EnumKind>(i);
        const auto& rows = kv::EnumTables()[i].rows;
        if (const auto* numbers = std::get_if<std::span<const kv::NumberRow>>(&rows))
        {
            std::set<QString> constants;
            for (const kv::NumberRow& row : *numbers)
            {
                EXPECT_EQ(Bare(kind, row.number), row.constant) << "a number stands twice";
                EXPECT_TRUE(constants.insert(row.constant).second) << row.constant;
                bool isNumber = false;
                const int named = QString(row.constant).section('_', 1).toInt(&isNumber);
                EXPECT_TRUE(!isNumber || named == row.number) << row.constant;
            }
        }
        else if (const auto* words = std::get_if<std::span<const kv::WordRow>>(&rows))
        {
            for (const kv::WordRow& row : *words)
            {
                EXPECT_EQ(Bare(kind, row.key), row.constant) << "a word stands twice";
                if (kind != EnumKind::LinearDimensionDecimalSeparator)
                {
                    EXPECT_EQ(QString(row.constant).section('_', 1).toLower(), NameSuggestedBy(row.key)) << row.key;
                }
            }
        }
    }
}

TEST(EnumConstants, StandForTheNumbersOfTheHost)
{
    EXPECT_EQ(Bare(EnumKind::UnitPrecision, 8), "kvUnitPrecision_8");
    EXPECT_EQ(Bare(EnumKind::DimensionScale, 1), "kvDimensionScale_ScaleDimensionsAccordingToSheet");
    EXPECT_EQ(Bare(EnumKind::DimensionScale, 2), "kvDimensionScale_UseScaleFactor");
    EXPECT_EQ(Bare(EnumKind::DimensionFitGeometry, 4), "kvDimensionFitGeometry_KeepTextBetweenExtensionLines");
    EXPECT_EQ(Bare(EnumKind::DimensionArrowType, 0), "kvDimensionArrowType_ClosedFilled");
    EXPECT_EQ(Bare(EnumKind::DimensionArrowType, 1), "kvDimensionArrowType_ClosedBlank");
    EXPECT_EQ(Bare(EnumKind::DimensionArrowType, 19), "kvDimensionArrowType_None");
    EXPECT_EQ(Bare(EnumKind::DimensionArrowType, 20), "kvDimensionArrowType_Custom");
    EXPECT_EQ(Bare(EnumKind::NoteDirection, 3), "kvNoteDirection_Vertical");
    EXPECT_EQ(Bare(EnumKind::TableBordersLineType, 6), "kvTableBordersLineType_VerticalRight");
    EXPECT_EQ(Bare(EnumKind::TableCellType, 3), "kvTableCellType_Header");
    EXPECT_EQ(Bare(EnumKind::DualDimensionFormat, 2), "kvDualDimensionFormat_Decimal");
    EXPECT_EQ(Bare(EnumKind::LinearDimensionFormat, 6), "kvLinearDimensionFormat_WindowsDesktop");
    EXPECT_EQ(Bare(EnumKind::ToleranceCalculation, 1), "kvToleranceCalculation_Symmetrical");
    EXPECT_EQ(Bare(EnumKind::ArcSymbolType, 2), "kvArcSymbolType_None");
    // Unknown numbers.
    EXPECT_EQ(Bare(EnumKind::UnitPrecision, 9), "kvUnitPrecision_0");
    EXPECT_EQ(Bare(EnumKind::DimensionScale, 0), "kvDimensionScale_UseScaleFactor");
    EXPECT_EQ(Bare(EnumKind::DualDimensionFormat, 0), "kvDualDimensionFormat_Scientific");
    EXPECT_EQ(Bare(EnumKind::TableCellType, -1), "kvTableCellType_Title");
    EXPECT_EQ(Bare(EnumKind::NoteDirection, 2), "kvNoteDirection_ByStyle");
    EXPECT_EQ(Bare(EnumKind::DimensionCenterMarkDisplay, 3), "kvDimensionCenterMarkDisplay_None");
}

TEST(EnumConstants, StandForDisplayWords)
{
    EXPECT_EQ(Bare(EnumKind::PolyLine3DFitSmooth, "Quadratic"), "kvPolyLine3DFitSmooth_Qudratic");
    EXPECT_EQ(Bare(EnumKind::PolygonMeshFitSmooth, "Quadratic"), "kvPolygonMeshFitSmooth_Qudratic");
    EXPECT_EQ(Bare(EnumKind::PolyLine3DFitSmooth, "Bezier"), "kvPolyLine3DFitSmooth_None");
    EXPECT_EQ(Bare(EnumKind::BlockInsertUnits, "Light Years"), "kvBlockInsertUnits_LightYears");
    EXPECT_EQ(Bare(EnumKind::EmbeddedObjectPrintQuality, "High graphics"), "kvEmbeddedObjectPrintQuality_HighGraphics");
    EXPECT_EQ(Bare(EnumKind::ViewportStandardScale, "Custom scale"), "kvViewportStandardScale_CustomScale");
    EXPECT_EQ(Bare(EnumKind::ViewportStandardScale, "3/32\" = 1'-0\""), "kvViewportStandardScale_3_32in_1ft");
    EXPECT_EQ(Bare(EnumKind::ViewportStandardScale, "1'-0\" = 1'-0\""), "kvViewportStandardScale_1ft_1ft");
    EXPECT_EQ(Bare(EnumKind::LinearDimensionDecimalSeparator, "Period"), "kvLinearDimensionDecimalSeparator_Period");
    EXPECT_EQ(Bare(EnumKind::LinearDimensionDecimalSeparator, " "), "kvLinearDimensionDecimalSeparator_Space");
    EXPECT_EQ(Bare(EnumKind::TextJustification, "Fit"), "kvTextJustification_Fit");
    // Words without a row, letter case included.
    EXPECT_EQ(Bare(EnumKind::TextJustification, "fit"), "kvTextJustification_Left");
    EXPECT_EQ(Bare(EnumKind::BlockInsertUnits, ""), "kvBlockInsertUnits_Unitless");
    EXPECT_EQ(Bare(EnumKind::LinearDimensionDecimalSeparator, ";"), "kvLinearDimensionDecimalSeparator_Comma");
    EXPECT_EQ(Bare(EnumKind::EmbeddedObjectPrintQuality, "?"), "kvEmbeddedObjectPrintQuality_LowGraphics");
    EXPECT_EQ(Bare(EnumKind::RichLineJustification, "Top"), "kvRichLineJustification_Top");
}

TEST_F(EnumTranslations, DecideWhichWordsMatch)
{
    {
        const MarkingTranslator values("property_values");
        EXPECT_EQ(Bare(EnumKind::NoteJustification, "Middle Right*"), "kvNoteJustification_MiddleRight");
        EXPECT_EQ(Bare(EnumKind::NoteJustification, "Middle Right"), "kvNoteJustification_TopLeft");
        EXPECT_EQ(Bare(EnumKind::BlockInsertUnits, "Feet"), "kvBlockInsertUnits_Feet");
    }
    {
        const MarkingTranslator units("CZtUtils");
        EXPECT_EQ(Bare(EnumKind::BlockInsertUnits, "Feet*"), "kvBlockInsertUnits_Feet");
        EXPECT_EQ(Bare(EnumKind::BlockInsertUnits, "Feet"), "kvBlockInsertUnits_Unitless");
        EXPECT_EQ(Bare(EnumKind::NoteJustification, "Middle Right"), "kvNoteJustification_MiddleRight");
    }
    EXPECT_EQ(Bare(EnumKind::BlockInsertUnits, "Feet"), "kvBlockInsertUnits_Feet");
}

TEST(EnumConstants, StandForTheFlag)
{
    constexpr EnumKind kind = EnumKind::DualDimensionInsertPlacement;
    EXPECT_EQ(kv::EnumConstantOfFlag(EnumForm::Bare, kind, true), "kvDualDimensionInsertPlacement_BelowPrimaryUnits");
    EXPECT_EQ(kv::EnumConstantOfFlag(EnumForm::Bare, kind, false), "kvDualDimensionInsertPlacement_AfterPrimaryUnits");
}

TEST(LineWeights, AreToldInHundredthsAndDifferInTheirDefault)
{
    for (const auto& [number, constant] : std::map<int, std::string>{{0, "kvLnWt_000"},
                                                                     {5, "kvLnWt_005"},
                                                                     {35, "kvLnWt_035"},
                                                                     {211, "kvLnWt_211"},
                                                                     {-1, "kvLnWt_ByLayer"},
                                                                     {-2, "kvLnWt_ByBlock"},
                                                                     {-3, "kvLnWt_ByLwDefault"}})
    {
        EXPECT_EQ(Bare(EnumKind::LineWeight, number), constant);
        EXPECT_EQ(kv::EntityLineWeight(EnumForm::Bare, number).toStdString(), constant);
    }
    for (const int number : {-4, 1, 55, 212})
    {
        EXPECT_EQ(Bare(EnumKind::LineWeight, number), "kvLnWt_000");
        EXPECT_EQ(kv::EntityLineWeight(EnumForm::Bare, number), "kvLnWt_ByLwDefault");
    }
    EXPECT_EQ(kv::EntityLineWeight(EnumForm::Morvane, 7), "Morvane.kvLineWeight_e.kvLnWt_ByLwDefault");
}

TEST(EnumForms, AreBareQualifiedOrUnderTheApplication)
{
    EXPECT_EQ(kv::EnumConstant(EnumForm::Bare, EnumKind::LineWeight, 0), "kvLnWt_000");
    EXPECT_EQ(kv::EnumConstant(EnumForm::Qualified, EnumKind::LineWeight, 0), "kvLineWeight_e.kvLnWt_000");
    EXPECT_EQ(kv::EnumConstant(EnumForm::Morvane, EnumKind::LineWeight, 0), "Morvane.kvLineWeight_e.kvLnWt_000");

    const QString constant = "kvDimensionScale_e.kvDimensionScale_UseScaleFactor";
    EXPECT_EQ(kv::FormOfConstant(EnumForm::Bare, constant), "kvDimensionScale_UseScaleFactor");
    EXPECT_EQ(kv::FormOfConstant(EnumForm::Qualified, constant), constant);
    EXPECT_EQ(kv::FormOfConstant(EnumForm::Morvane, constant), "Morvane." + constant);
    EXPECT_EQ(kv::FormOfConstant(EnumForm::Bare, "kvNoDot"), "kvNoDot");
}
} // namespace
