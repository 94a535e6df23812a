// Changes of dimensions: what a dimension has other than its style.
#include "host/db/dimensions.h"
#include "host/odrx/error.h"
#include "objects/dimension_settings.h"
#include "objects/object_converter.h"
#include "objects/variant_readers.h"

#include <cmath>

using kv::EnumKind;
using Form = DimensionForm;

namespace
{
constexpr DimensionOptions General = {nullptr, nullptr};
constexpr DimensionOptions AngularOptions = {"DimensionStyleAngularDimensionOptions", "angularDimensionOptions"};
constexpr DimensionOptions ArrowsOptions = {"DimensionStyleArrowsOptions", "arrowsOptions"};
constexpr DimensionOptions DualOptions = {"DimensionStyleDualDimensionOptions", "dualDimensionOptions"};
constexpr DimensionOptions LinearOptions = {"DimensionStyleLinearDimensionOptions", "linearDimensionOptions"};
constexpr DimensionOptions RadialDiameterOptions = {"DimensionStyleRadialDiameterDimensionOptions",
                                                    "radialDiameterDimensionOptions"};
constexpr DimensionOptions FitOptions = {"DimensionStyleFitOptions", "fitOptions"};
constexpr DimensionOptions LineOptions = {"DimensionStyleLineOptions", "lineOptions"};
constexpr DimensionOptions TextOptions = {"DimensionStyleTextOptions", "textOptions"};
constexpr DimensionOptions ToleranceOptions = {"DimensionStyleToleranceOptions", "toleranceOptions"};

constexpr auto OfDimension = DimensionRoot::Dimension;

// The fit that keeps text and arrows between the extension lines, and the kinds of scales.
constexpr int FitBetweenExtensionLines = 4;
constexpr int ScaleBySheet = 1;
constexpr int ScaleByFactor = 2;

// The API has one alignment where the drawing has two halves. The two are no mirror images of each other.
constexpr int AlignmentByInside(bool inside, bool outside)
{
    return !outside ? 2 : inside ? 0 : 1;
}
constexpr int AlignmentByOutside(bool outside, bool inside)
{
    return inside ? 2 : outside ? 1 : 0;
}

// A half of a center mark; -1 stands for the half that stays as it is.
template <typename Half>
constexpr std::optional<Half> CenterMarkHalf(Half value)
{
    return value != Half{-1} ? std::optional(value) : std::nullopt;
}
} // namespace

OdSmartPtr<OdDbDimension> CZtConverterKVAPIObject::OpenedDimension(const PropertyPass& pass)
{
    auto dimension = Opened<OdDbDimension>(pass.handle);
    if (!dimension)
    {
        throw OdError_NotThatKindOfClass();
    }
    return dimension;
}

QString CZtConverterKVAPIObject::ChangeArrows(const PropertyPass& pass, DimensionRoot kind)
{
    QString text;
    for (const auto& [label, word] : {std::pair("Arrow 1", "SetStartArrow"), std::pair("Arrow 2", "SetEndArrow"),
                                      std::pair("Arrow", "SetLeaderArrow")})
    {
        text += ChangeSetting(pass, kind, ArrowsOptions, label,
                              [&, setter = QLatin1String(word)](const QString& options, const CZtVariant& value)
                              { return WriteSetArrow(options, setter, TagOf(value), TextOf(value)); });
    }
    return text + ChangeSettings(pass, kind, ArrowsOptions, {{"Arrow size", "Size", Form::Number}});
}

QString CZtConverterKVAPIObject::ChangeFit(const PropertyPass& pass)
{
    QString text;
    if (const CZtVariant inside = pass.properties.TakeProperty("DimLine inside"); !inside.IsNull())
    {
        QString options;
        text += OpenOptions(pass.variable, OfDimension, FitOptions, options);
        text += WriteSetBoolProperty(options, QStringLiteral("HideArrows"), TagOf(inside) == 1);
        text += OpenOptions(pass.variable, OfDimension, FitOptions, options);
        text +=
            WriteSetEnumByNumber(options, EnumKind::DimensionFitGeometry, QStringLiteral("FitGeometry"), TagOf(inside));
    }
    text += ChangeSetting(pass, OfDimension, FitOptions, "Text inside",
                          [&](const QString& options, const CZtVariant& value)
                          {
                              const int current = OpenedDimension(pass)->dimfit();
                              return WriteSetEnumByNumber(options, EnumKind::DimensionFitGeometry,
                                                          QStringLiteral("FitGeometry"),
                                                          TagOf(value) == 1 ? FitBetweenExtensionLines : current);
                          });
    text +=
        ChangeSettings(pass, OfDimension, FitOptions,
                       {{"Text movement", "FitDimensionText", Form::Constant, EnumKind::DimensionFitDimensionText}});
    text +=
        ChangeSetting(pass, OfDimension, FitOptions, "Dim scale overall",
                      [&](const QString& options, const CZtVariant& value)
                      {
                          const double scale = value.GetDouble();
                          return WriteSetDimensionScale(options, QStringLiteral("SetDimensionScale"),
                                                        std::abs(scale) > 1e-10 ? ScaleByFactor : ScaleBySheet, scale);
                      });
    return text + ChangeSettings(pass, OfDimension, FitOptions,
                                 {{"DimLine forced", "DimensionLinesBetweenExtensionLine", Form::Flag}});
}

QString CZtConverterKVAPIObject::ChangeLineColor(const PropertyPass& pass, DimensionRoot kind)
{
    return ChangeSettings(pass, kind, LineOptions, {{"DimLine LColor", "DimensionLineColor", Form::Color}});
}

QString CZtConverterKVAPIObject::ChangeLineLook(const PropertyPass& pass, DimensionRoot kind)
{
    QString text = ChangeSettings(pass, kind, LineOptions,
                                  {
                                      {"DimLine LStyle", "DimensionLineStyle", Form::LineStyle},
                                      {"DimLine LWeight", "DimensionLineLineWeight", Form::LineWeight},
                                  });
    text += ChangeLineColor(pass, kind);
    return text;
}

QString CZtConverterKVAPIObject::ChangeLines(const PropertyPass& pass)
{
    QString text = ChangeLineLook(pass, OfDimension);
    text += ChangeSettings(pass, OfDimension, LineOptions,
                           {
                               {"DimLine 1", "HideDimensionLine1", Form::Flag},
                               {"DimLine 2", "HideDimensionLine2", Form::Flag},
                               {"DimLine", "HideDimensionLine2", Form::ReversedFlag},
                               {"ExtLine 1 LStyle", "ExtensionLine1Style", Form::LineStyle},
                               {"ExtLine 2 LStyle", "ExtensionLine2Style", Form::LineStyle},
                               {"ExtLine LWeight", "ExtensionLineLineWeight", Form::LineWeight},
                               {"ExtLine LColor", "ExtensionLineColor", Form::Color},
                               {"ExtLine ext", "ExtensionLineDistancePastDimensionLines", Form::Number},
                               {"ExtLine 1", "HideExtensionLine1", Form::Flag},
                               {"ExtLine 2", "HideExtensionLine2", Form::Flag},
                           });
    text += ChangeSetting(pass, OfDimension, LineOptions, "ExtLine fixed",
                          [&](const QString& options, const CZtVariant& value) {
                              return WriteSetExtensionLineFixedLength(options, TagOf(value) != 0,
                                                                      OpenedDimension(pass)->getExtLineFixLen());
                          });
    text += ChangeSetting(pass, OfDimension, LineOptions, "ExtLine fixed length",
                          [&](const QString& options, const CZtVariant& value)
                          { return WriteSetExtensionLineFixedLength(options, true, value.GetDouble()); });
    return text +
           ChangeSettings(pass, OfDimension, LineOptions, {{"ExtLine offset", "ExtensionLineOffset", Form::Number}});
}

QString CZtConverterKVAPIObject::ChangeDimensionText(const PropertyPass& pass)
{
    const QString position = QStringLiteral("TextPosition");
    QString text = ChangeSettings(pass, OfDimension, General, {{"Rotation", "TextRotation", Form::Number}});
    text += ChangeSetting(pass, OfDimension, General, "Position x",
                          [&](const QString& general, const CZtVariant& value)
                          { return WriteSetFirstCoordinate(general, position, value.GetDouble()); });
    text += ChangeSetting(pass, OfDimension, General, "Position y",
                          [&](const QString& general, const CZtVariant& value)
                          { return WriteSetSecondCoordinate(general, position, value.GetDouble()); });
    text += ChangeSettings(pass, OfDimension, General, {{"Text override", "TextOverride", Form::Text}});
    text += ChangeSettings(
        pass, OfDimension, TextOptions,
        {
            {"TextStyle", "Style", Form::ElementText},
            {"Text color", "Color", Form::Color},
            {"Fill color", "FillColor", Form::Color},
            {"Text height", "Height", Form::Number},
            {"Text pos hor", "HorizontalPosition", Form::Constant, EnumKind::DimensionTextHorizontalPosition},
            {"Text pos vert", "VerticalPosition", Form::Constant, EnumKind::DimensionTextVerticalPosition},
            {"Text offset", "OffsetFromDimensionLines", Form::Number},
        });
    const auto align = [&](const char* label, const auto& numberOf)
    {
        return ChangeSetting(pass, OfDimension, TextOptions, label,
                             [&](const QString& options, const CZtVariant& value)
                             {
                                 return WriteSetEnumByNumber(options, EnumKind::DimensionTextAlignment,
                                                             QStringLiteral("Alignment"),
                                                             numberOf(IsWord(words_, value, "On")));
                             });
    };
    text += align("Text inside align",
                  [&](bool isOn) { return AlignmentByInside(isOn, OpenedDimension(pass)->textOutsideAlign()); });
    text += align("Text outside align",
                  [&](bool isOn) { return AlignmentByOutside(isOn, OpenedDimension(pass)->textInsideAlign()); });
    return text;
}

QString CZtConverterKVAPIObject::ChangeToleranceSettings(const PropertyPass& pass)
{
    return ChangeSettings(
        pass, OfDimension, ToleranceOptions,
        {
            {"Tolerance display", "Calculation", Form::Constant, EnumKind::ToleranceCalculation},
            {"Tolerance precision", "Precision", Form::Constant, EnumKind::UnitPrecision},
            {"Tolerance limit upper", "MaximumValue", Form::Number},
            {"Tolerance limit lower", "MinimumValue", Form::Number},
            {"Tolerance text height", "Scale", Form::Number},
            {"Tolerance pos vert", "VerticalTextJustification", Form::Constant,
             EnumKind::ToleranceVerticalTextJustification},
            {"Tolerance suppress leading zeros", "HideLeadingZeroes", Form::Flag},
            {"Tolerance suppress trailing zeros", "HideTrailingZeroes", Form::Flag},
            {"Tolerance suppress zero feet", "HideZeroesIf0Feet", Form::Flag},
            {"Tolerance suppress zero inches", "HideZeroesIf0Inches", Form::Flag},
            {"Alt tolerance precision", "DualDimensionPrecision", Form::Constant, EnumKind::UnitPrecision},
            {"Alt tolerance suppress leading zeros", "DualDimensionHideLeadingZeroes", Form::Flag},
            {"Alt tolerance suppress trailing zeros", "DualDimensionHideTrailingZeroes", Form::Flag},
            {"Alt tolerance suppress zero feet", "DualDimensionHideZeroesIf0Feet", Form::Flag},
            {"Alt tolerance suppress zero inches", "DualDimensionHideZeroesIf0Inches", Form::Flag},
        });
}

QString CZtConverterKVAPIObject::ChangePrimaryUnits(const PropertyPass& pass, bool isAngular)
{
    QString text = ChangeSettings(
        pass, OfDimension, LinearOptions,
        {
            {"Dim UnitSystem", "Format", Form::Constant, EnumKind::LinearDimensionFormat},
            {"Precision", "Precision", Form::Constant, EnumKind::UnitPrecision},
            {"Fractional type", "FractionalDisplay", Form::Constant, EnumKind::LinearDimensionFractionalDisplay},
            {"Decimal separator", "DecimalSeparator", Form::ConstantByWord, EnumKind::LinearDimensionDecimalSeparator},
            {"Dim roundoff", "RoundToTheNearest", Form::Number},
            {"Dim prefix", "Prefix", Form::Text},
            {"Dim suffix", "Suffix", Form::Text},
            {"Dim scale linear", "MeasurementScaleFactor", Form::Number},
        });
    // An angle has these two among its angular settings.
    if (!isAngular)
    {
        text += ChangeSettings(pass, OfDimension, LinearOptions,
                               {
                                   {"Suppress leading zeros", "HideLeadingZeroes", Form::Flag},
                                   {"Suppress trailing zeros", "HideTrailingZeroes", Form::Flag},
                               });
    }
    return text + ChangeSettings(pass, OfDimension, LinearOptions,
                                 {
                                     {"Suppress zero feet", "HideZeroesIf0Feet", Form::Flag},
                                     {"Suppress zero inches", "HideZeroesIf0Inches", Form::Flag},
                                 });
}

QString CZtConverterKVAPIObject::ChangeAlternateUnits(const PropertyPass& pass)
{
    return ChangeSettings(pass, OfDimension, DualOptions,
                          {
                              {"Alt enabled", "Show", Form::Flag},
                              {"Alt format", "Format", Form::Constant, EnumKind::DualDimensionFormat},
                              {"Alt precision", "Precision", Form::Constant, EnumKind::UnitPrecision},
                              {"Alt round", "RoundToTheNearest", Form::Number},
                              {"Alt scale", "MultiplierForConvertingUnits", Form::Number},
                              {"Alt prefix", "Prefix", Form::Text},
                              {"Alt suffix", "Suffix", Form::Text},
                              {"Alt suppress leading zeros", "HideLeadingZeroes", Form::Flag},
                              {"Alt suppress trailing zeros", "HideTrailingZeroes", Form::Flag},
                              {"Alt suppress zeros feet", "HideZeroesIf0Feet", Form::Flag},
                              {"Alt suppress zeros inches", "HideZeroesIf0Inches", Form::Flag},
                          });
}

QString CZtConverterKVAPIObject::ConvertDimension(const PropertyPass& pass, bool isAngular)
{
    QString text = ChangeSettings(pass, OfDimension, General, {{"Dim style", "DimensionStyle", Form::ElementText}});
    text += ChangeArrows(pass, OfDimension);
    text += ChangeFit(pass);
    text += ChangeLines(pass);
    text += ChangeDimensionText(pass);
    text += ChangeToleranceSettings(pass);
    text += ChangePrimaryUnits(pass, isAngular);
    text += ChangeAlternateUnits(pass);
    return text;
}

QString CZtConverterKVAPIObject::ConvertAlignedDimensionProperties(const PropertyPass& pass)
{
    return ConvertDimension(pass, false);
}

QString CZtConverterKVAPIObject::ConvertAngularDimensionProperties(const PropertyPass& pass)
{
    QString text = ConvertDimension(pass, true);
    text += ChangeSettings(pass, OfDimension, AngularOptions,
                           {
                               {"Angle format", "Format", Form::Constant, EnumKind::DimensionStyleAngleFormat},
                               {"Angle precision", "Precision", Form::Constant, EnumKind::UnitPrecision},
                               {"Suppress leading zeros", "HideLeadingZeroes", Form::Flag},
                               {"Suppress trailing zeros", "HideTrailingZeroes", Form::Flag},
                           });
    return text;
}

QString CZtConverterKVAPIObject::ConvertArcDimensionProperties(const PropertyPass& pass)
{
    QString text = ConvertDimension(pass, false);
    if (const CZtVariant symbol = pass.properties.TakeProperty("Arc length symbol"); !symbol.IsNull())
    {
        text += WriteSetEnumByNumber(pass.variable, EnumKind::ArcSymbolType, QStringLiteral("ArcSymbolType"),
                                     TagOf(symbol));
    }
    return text;
}

QString CZtConverterKVAPIObject::ConvertDiametricDimensionProperties(const PropertyPass& pass)
{
    QString text = ConvertDimension(pass, false);
    const QString word = QStringLiteral("SetCenterMarkDisplay");
    text += ChangeSetting(pass, OfDimension, RadialDiameterOptions, "CenterMark size",
                          [&](const QString& options, const CZtVariant& value) {
                              return WriteSetCenterMark(options, word, std::nullopt, CenterMarkHalf(value.GetDouble()));
                          });
    text += ChangeSetting(pass, OfDimension, RadialDiameterOptions, "CenterMark",
                          [&](const QString& options, const CZtVariant& value)
                          { return WriteSetCenterMark(options, word, CenterMarkHalf(TagOf(value)), std::nullopt); });
    return text + ChangeSettings(pass, OfDimension, RadialDiameterOptions,
                                 {{"Jog angle", "RadiusDimensionJogAngle", Form::Number}});
}

QString CZtConverterKVAPIObject::ConvertRadialDimensionProperties(const PropertyPass& pass)
{
    return ConvertDiametricDimensionProperties(pass);
}

QString CZtConverterKVAPIObject::ConvertJoggedDimensionProperties(const PropertyPass& pass)
{
    QString text = ConvertDimension(pass, false);
    const auto change = [&](const char* label, const char* word, const auto& write)
    {
        const CZtVariant value = pass.properties.TakeProperty(label);
        return value.IsNull() ? QString() : (this->*write)(pass.variable, QLatin1String(word), value.GetDouble());
    };
    text += change("Center location override X", "OverrideCenterPoint", &CZtConverterKVAPIObject::WriteSetPointX);
    text += change("Center location override Y", "OverrideCenterPoint", &CZtConverterKVAPIObject::WriteSetPointY);
    text += change("Jog location X", "JogPoint", &CZtConverterKVAPIObject::WriteSetPointX);
    text += change("Jog location Y", "JogPoint", &CZtConverterKVAPIObject::WriteSetPointY);
    text += change("Jog angle", "JogAngle", &CZtConverterKVAPIObject::WriteSetDoubleProperty);
    return text;
}

QString CZtConverterKVAPIObject::ConvertOrdinateDimensionProperties(const PropertyPass& pass)
{
    return ConvertDimension(pass, false);
}

QString CZtConverterKVAPIObject::ConvertRotatedDimensionProperties(const PropertyPass& pass)
{
    return ConvertDimension(pass, false);
}
