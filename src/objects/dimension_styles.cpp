// Dimension styles: their creation, and what they say about arrows, lines, texts and numbers.
#include "core/constant_form.h"
#include "host/db/symbols.h"
#include "objects/dimension_settings.h"
#include "objects/object_converter.h"
#include "objects/variant_readers.h"

#include <QtCore/QStringList>

#include <cmath>

using kv::EnumKind;
using Form = DimensionForm;

namespace
{
constexpr DimensionOptions AngularOfStyle = {"DimensionStyleAngularDimensionOptions", "angularOptions"};
constexpr DimensionOptions ArrowOfStyle = {"DimensionStyleArrowsOptions", "arrowOptions"};
constexpr DimensionOptions DualOfStyle = {"DimensionStyleDualDimensionOptions", "dualOptions"};
constexpr DimensionOptions FitOfStyle = {"DimensionStyleFitOptions", "fitOptions"};
constexpr DimensionOptions LinearOfStyle = {"DimensionStyleLinearDimensionOptions", "linearOptions"};
constexpr DimensionOptions LinesOfStyle = {"DimensionStyleLineOptions", "linesOptions"};
constexpr DimensionOptions RadialDiameterOfStyle = {"DimensionStyleRadialDiameterDimensionOptions",
                                                    "radialDiameterOptions"};
constexpr DimensionOptions TextOfStyle = {"DimensionStyleTextOptions", "textOptions"};
constexpr DimensionOptions ToleranceOfStyle = {"DimensionStyleToleranceOptions", "toleranceOptions"};

constexpr auto OfStyle = DimensionRoot::Style;

// What stands for the measured value in a prefix or suffix.
constexpr QLatin1String Measured("<>", 2);

bool IsZero(double value)
{
    return std::abs(value) <= 1e-10;
}
} // namespace

QString CZtConverterKVAPIObject::CreateDimensionStyle(const Creation& creation)
{
    return WriteCreateDimensionStyle(creation.variable,
                                     NameOf<OdDbDimStyleTableRecord>(creation, "DimensionStyleName"));
}

QString CZtConverterKVAPIObject::StyleArrows(const PropertyPass& pass)
{
    QString text = ChangeSettings(pass, OfStyle, ArrowOfStyle, {{"Arrow Size", "Size", Form::Number}});
    for (const auto& [label, setter] :
         {std::pair("Start arrow", "SetStartArrow"), std::pair("End arrow", "SetEndArrow"),
          std::pair("Leader arrow", "SetLeaderArrow")})
    {
        const CZtVariant value = pass.properties.TakeProperty(label);
        if (!value.IsNull() && !pass.created && !TextOf(value).isEmpty())
        {
            QString options;
            text += OpenOptions(pass.variable, OfStyle, ArrowOfStyle, options);
            text += WriteSetStyleArrow(options, QLatin1String(setter), TagOf(value), TextOf(value));
        }
    }
    return text;
}

QString CZtConverterKVAPIObject::StyleDualUnits(const PropertyPass& pass)
{
    QString text = ChangeSettings(
        pass, OfStyle, DualOfStyle,
        {
            {"Show dual dimensions", "Show", Form::Flag},
            {"Dual Dimensions Format", "Format", Form::Constant, EnumKind::DualDimensionFormat},
            {"Dual Dimensions Precision", "Precision", Form::Constant, EnumKind::UnitPrecision},
            {"Dual Dimensions Multiplier for converting units", "MultiplierForConvertingUnits", Form::Number},
            {"Dual Dimensions Round to the nearest", "RoundToTheNearest", Form::Number},
        });
    const auto affix = [&](const char* label, const char* word, const auto& partOf)
    {
        return ChangeSetting(pass, OfStyle, DualOfStyle, label,
                             [&](const QString& options, const CZtVariant& value)
                             {
                                 const QStringList parts = TextOf(value).split(Measured, Qt::SkipEmptyParts);
                                 return WriteSetStringProperty(options, QLatin1String(word),
                                                               parts.isEmpty() ? QString() : partOf(parts), true);
                             });
    };
    text += affix("Dual Dimensions Prefix", "Prefix", [](const QStringList& parts) { return parts.first(); });
    text += affix("Dual Dimensions Suffix", "Suffix", [](const QStringList& parts) { return parts.last(); });
    text += ChangeSettings(pass, OfStyle, DualOfStyle,
                           {
                               {"Dual Dimensions Hide leading zeros", "HideLeadingZeroes", Form::Flag},
                               {"Dual Dimensions Hide trailing zeros", "HideTrailingZeroes", Form::Flag},
                               {"Dual Dimensions Hide zeros feet", "HideZeroesIf0Feet", Form::Flag},
                               {"Dual Dimensions Hide zeros inches", "HideZeroesIf0Inches", Form::Flag},
                           });
    for (const auto& [label, isBelow] : {std::pair("Dual Dimensions After primary units", false),
                                         std::pair("Dual Dimensions Below primary units", true)})
    {
        text += ChangeSetting(pass, OfStyle, DualOfStyle, label,
                              [&, below = isBelow](const QString& options, const CZtVariant&) {
                                  return WriteSetEnumFlag(options, EnumKind::DualDimensionInsertPlacement,
                                                          QStringLiteral("Insertion"), below);
                              });
    }
    return text;
}

QString CZtConverterKVAPIObject::StyleFit(const PropertyPass& pass)
{
    QString text = ChangeSettings(
        pass, OfStyle, FitOfStyle,
        {
            {"FitDimensionsGeometryAutomatic", "FitGeometry", Form::Constant, EnumKind::DimensionFitGeometry},
            {"FitDimensionsGeometryArrows", "FitGeometry", Form::Constant, EnumKind::DimensionFitGeometry},
            {"FitDimensionsGeometryText", "FitGeometry", Form::Constant, EnumKind::DimensionFitGeometry},
            {"FitDimensionsGeometryTextAndArrows", "FitGeometry", Form::Constant, EnumKind::DimensionFitGeometry},
            {"FitDimensionsGeometryKeepTextBetweenExtensionLines", "FitGeometry", Form::Constant,
             EnumKind::DimensionFitGeometry},
            {"FitDimensionsGeometryHideArrows", "HideArrows", Form::Flag},
            {"FitTextAboveTheDimensionLineWithLeader", "FitDimensionText", Form::Constant,
             EnumKind::DimensionFitDimensionText},
            {"FitTextAboveTheDimensionLineWithoutLeader", "FitDimensionText", Form::Constant,
             EnumKind::DimensionFitDimensionText},
            {"FitTextNextToTheDimensionLine", "FitDimensionText", Form::Constant, EnumKind::DimensionFitDimensionText},
            {"FitDimensionLinesBetweenExtensionLines", "DimensionLinesBetweenExtensionLine", Form::Flag},
            {"FitSpecifyTextPlacement", "SpecifyTextPlacement", Form::Flag},
        });
    // Each of the two rows is written when the number says so.
    const auto scale = [&](const char* label, bool bySheet, const char* constant)
    {
        const CZtVariant value = pass.properties.TakeProperty(label);
        if (value.IsNull() || IsZero(value.GetDouble()) != bySheet)
        {
            return QString();
        }
        QString options;
        QString way = OpenOptions(pass.variable, OfStyle, FitOfStyle, options);
        return way + WriteSetEnumPair(options, QStringLiteral("SetDimensionScale"),
                                      ConstantForLanguage(QLatin1String(constant)), value.GetDouble());
    };
    text += scale("FitScaleFactor", false, "kvDimensionScale_e.kvDimensionScale_UseScaleFactor");
    text += scale("FitScaleDimensionsAccordingToSheet", true,
                  "kvDimensionScale_e.kvDimensionScale_ScaleDimensionsAccordingToSheet");
    return text;
}

QString CZtConverterKVAPIObject::StyleLinearUnits(const PropertyPass& pass)
{
    QString text =
        ChangeSettings(pass, OfStyle, LinearOfStyle,
                       {
                           {"LinearDimensionsFormat", "Format", Form::Constant, EnumKind::LinearDimensionFormat},
                           {"LinearDimensionsPrecision", "Precision", Form::Constant, EnumKind::UnitPrecision},
                           {"LinearDimensionsFractionalDisplay", "FractionalDisplay", Form::Constant,
                            EnumKind::LinearDimensionFractionalDisplay},
                           {"LinearDimensionsDecimalSeparator", "DecimalSeparator", Form::ConstantByWord,
                            EnumKind::LinearDimensionDecimalSeparator},
                           {"LinearDimensionsRoundToTheNearest", "RoundToTheNearest", Form::Number},
                       });
    // One text for both sides of the measured value; without the value it is the suffix.
    if (const CZtVariant value = pass.properties.TakeProperty("Linear Dimensions Prefix"); !value.IsNull())
    {
        const QString whole = TextOf(value);
        const int mark = whole.indexOf(Measured);
        const QString suffix = mark < 0 ? whole : whole.mid(mark + Measured.size());
        QString options;
        text += OpenOptions(pass.variable, OfStyle, LinearOfStyle, options);
        text += WriteSetStringProperty(options, QStringLiteral("Prefix"), whole.left(std::max(mark, 0)), true);
        if (mark < 0 || !suffix.isEmpty())
        {
            text += OpenOptions(pass.variable, OfStyle, LinearOfStyle, options);
            text += WriteSetStringProperty(options, QStringLiteral("Suffix"), suffix, true);
        }
    }
    text += ChangeSettings(pass, OfStyle, LinearOfStyle,
                           {
                               {"LinearDimensionsScaleFactor", "MeasurementScaleFactor", Form::Number},
                               {"LinearDimensionsFollowSheet", "ZeroesDisplayFollowSheetDimensions", Form::Flag},
                               {"Linear Dimensions Hide leading zeros", "HideLeadingZeroes", Form::Flag},
                               {"Linear Dimensions Hide trailing zeros", "HideTrailingZeroes", Form::Flag},
                               {"Linear Dimensions Hide zeros feet", "HideZeroesIf0Feet", Form::Flag},
                               {"Linear Dimensions Hide zeros inches", "HideZeroesIf0Inches", Form::Flag},
                           });
    return text;
}

QString CZtConverterKVAPIObject::StyleLines(const PropertyPass& pass)
{
    QString text = ChangeSettings(
        pass, OfStyle, LinesOfStyle,
        {
            {"LineDimensionsStyle", "DimensionLineStyle", Form::LineStyle},
            {"LineDimensionsWeight", "DimensionLineLineWeight", Form::LineWeight},
            {"LineDimensionsColor", "DimensionLineColor", Form::Color},
            {"LineDimensionsOffset", "DimensionLineOffset", Form::Number},
            {"LineDimensionsDistStartArrow", "DimensionLineDistancePastStartArrow", Form::Number},
            {"LineDimensionsSuppressDimLine1", "HideDimensionLine1", Form::Flag},
            {"LineDimensionsSuppressDimLine2", "HideDimensionLine2", Form::Flag},
            {"ExtLineDimensionsLine1", "ExtensionLine1Style", Form::LineStyle},
            {"ExtLineDimensionsLine2", "ExtensionLine2Style", Form::LineStyle},
            {"ExtLineDimensionsWeight", "ExtensionLineLineWeight", Form::LineWeight},
            {"ExtLineDimensionsColor", "ExtensionLineColor", Form::Color},
            {"ExtLineDimensionsOffset", "ExtensionLineOffset", Form::Number},
            {"ExtLineDimensionsDistPastDimLines", "ExtensionLineDistancePastDimensionLines", Form::Number},
            {"ExtLineDimensionsSuppressExtLine1", "HideExtensionLine1", Form::Flag},
            {"ExtLineDimensionsSuppressExtLine2", "HideExtensionLine2", Form::Flag},
        });
    // The flag goes with the length that stands beside it, which is written once more for itself.
    text += ChangeSetting(pass, OfStyle, LinesOfStyle, "ExtLineDimensionsOffsetFixedLength",
                          [&](const QString& options, const CZtVariant& value)
                          {
                              PropertyList beside = pass.properties;
                              return WriteSetExtensionLineFixedLength(
                                  options, IsSet(value, OfStyle),
                                  beside.TakeDouble("ExtLineDimensionsOffsetFixedLength_Length", 0.0));
                          });
    text += ChangeSetting(pass, OfStyle, LinesOfStyle, "ExtLineDimensionsOffsetFixedLength_Length",
                          [&](const QString& options, const CZtVariant& value)
                          { return WriteSetExtensionLineFixedLength(options, true, value.GetDouble()); });
    return text;
}

QString CZtConverterKVAPIObject::StyleCenterMark(const PropertyPass& pass)
{
    QString text =
        ChangeSetting(pass, OfStyle, RadialDiameterOfStyle, "CenterMarkDisplay",
                      [&](const QString& options, const CZtVariant& value)
                      {
                          // The sign tells the kind of the mark.
                          const double size = value.GetDouble();
                          const char* constant =
                              size > 0.0   ? "kvDimensionCenterMarkDisplay_e.kvDimensionCenterMarkDisplay_AsMark"
                              : size < 0.0 ? "kvDimensionCenterMarkDisplay_e.kvDimensionCenterMarkDisplay_AsCenterLine"
                                           : "kvDimensionCenterMarkDisplay_e.kvDimensionCenterMarkDisplay_None";
                          return WriteSetEnumPair(options, QStringLiteral("SetCenterMarkDisplay"),
                                                  ConstantForLanguage(QLatin1String(constant)), std::abs(size));
                      });
    text += ChangeSettings(pass, OfStyle, RadialDiameterOfStyle,
                           {{"RadiusDimensionJog", "RadiusDimensionJogAngle", Form::Number}});
    return text;
}

QString CZtConverterKVAPIObject::StyleText(const PropertyPass& pass)
{
    // "Wimension" is the journal's.
    return ChangeSettings(
        pass, OfStyle, TextOfStyle,
        {
            {"TextDimensionTextStyle", "Style", Form::ElementText},
            {"TextDimensionTextColor", "Color", Form::Color},
            {"TextDimensionTextFill", "FillColor", Form::Color},
            {"TextDimensionTextHeight", "Height", Form::Number},
            {"TextDimensionTextFractionalScale", "FractionalScale", Form::Number},
            {"TextDimensionTextFrameDimensionText", "FrameDimensionText", Form::Flag},
            {"TextDimensionTextHorizontalPosition", "HorizontalPosition", Form::Constant,
             EnumKind::DimensionTextHorizontalPosition},
            {"TextDimensionTextVerticalPosition", "VerticalPosition", Form::Constant,
             EnumKind::DimensionTextVerticalPosition},
            {"TextDimensionTextOffsetFromDimLine", "OffsetFromDimensionLines", Form::Number},
            {"TextDimensionTextAlignmentUseISOStandard", "Alignment", Form::Constant, EnumKind::DimensionTextAlignment},
            {"TextDimensionTextAlignmentAlignHorizontally", "Alignment", Form::Constant,
             EnumKind::DimensionTextAlignment},
            {"TextDimensionTextAlignmentAlignWithWimensionLines", "Alignment", Form::Constant,
             EnumKind::DimensionTextAlignment},
        });
}

QString CZtConverterKVAPIObject::StyleTolerance(const PropertyPass& pass)
{
    return ChangeSettings(
        pass, OfStyle, ToleranceOfStyle,
        {
            {"ToleranceSettingsCalculation", "Calculation", Form::Constant, EnumKind::ToleranceCalculation},
            {"ToleranceSettingsPrecision", "Precision", Form::Constant, EnumKind::UnitPrecision},
            {"ToleranceSettingsMaximumValue", "MaximumValue", Form::Number},
            {"ToleranceSettingsMinimumValue", "MinimumValue", Form::Number},
            {"ToleranceSettingsScale", "Scale", Form::Number},
            {"ToleranceSettingsVerticalTextJustification", "VerticalTextJustification", Form::Constant,
             EnumKind::ToleranceVerticalTextJustification},
            {"ToleranceSettingsHideLeadingZeroes", "HideLeadingZeroes", Form::Flag},
            {"ToleranceSettingsHideTrailingZeroes", "HideTrailingZeroes", Form::Flag},
            {"ToleranceSettingsHideZeroFeet", "HideZeroesIf0Feet", Form::Flag},
            {"ToleranceSettingsHideZeroInches", "HideZeroesIf0Inches", Form::Flag},
            {"ToleranceSettingsDualDimPrecision", "DualDimensionPrecision", Form::Constant, EnumKind::UnitPrecision},
            {"ToleranceSettingsDualDimHideLeadingZeroes", "DualDimensionHideLeadingZeroes", Form::Flag},
            {"ToleranceSettingsDualDimHideTrailingZeroes", "DualDimensionHideTrailingZeroes", Form::Flag},
            {"ToleranceSettingsDualDimHideZeroFeet", "DualDimensionHideZeroesIf0Feet", Form::Flag},
            {"ToleranceSettingsDualDimHideZeroInches", "DualDimensionHideZeroesIf0Inches", Form::Flag},
        });
}

QString CZtConverterKVAPIObject::ConvertDimensionStyle(const PropertyPass& pass)
{
    QString text;
    if (const QString name = TextOf(pass.properties.TakeProperty("DimensionStyleName")); !name.isEmpty())
    {
        text += WriteRenameStyle(pass.variable, name, false);
    }
    text += StyleArrows(pass);
    text += ChangeSettings(
        pass, OfStyle, AngularOfStyle,
        {
            {"Angular Format", "Format", Form::PlainConstant, EnumKind::DimensionStyleAngleFormat},
            {"Angular Precision", "Precision", Form::PlainConstant, EnumKind::UnitPrecision},
            {"Angular Hide leading zeros", "HideLeadingZeroes", Form::Flag},
            {"Angular Hide trailing zeros", "HideTrailingZeroes", Form::Flag},
            {"Arc Before dimension text", "ArcLengthSymbols", Form::PlainConstant, EnumKind::ArcLengthSymbols},
        });
    text += StyleDualUnits(pass);
    text += StyleFit(pass);
    text += StyleLinearUnits(pass);
    text += StyleLines(pass);
    text += StyleCenterMark(pass);
    text += StyleText(pass);
    text += StyleTolerance(pass);
    return text;
}
