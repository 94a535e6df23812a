// Values of the host and the bare enumeration constants of the automation API that stand for them.
// Numbers are those of the host, so that many tables read downwards from the highest one.
#include "backends/text/enumeration_tables.h"

#include <iterator>

namespace kv
{
namespace
{
// Hundredths of a millimetre.
constexpr NumberRow lineWeight[] = {
    {0, "kvLnWt_000"},      {5, "kvLnWt_005"},      {9, "kvLnWt_009"},          {13, "kvLnWt_013"},
    {15, "kvLnWt_015"},     {18, "kvLnWt_018"},     {20, "kvLnWt_020"},         {25, "kvLnWt_025"},
    {30, "kvLnWt_030"},     {35, "kvLnWt_035"},     {40, "kvLnWt_040"},         {50, "kvLnWt_050"},
    {53, "kvLnWt_053"},     {60, "kvLnWt_060"},     {70, "kvLnWt_070"},         {80, "kvLnWt_080"},
    {90, "kvLnWt_090"},     {100, "kvLnWt_100"},    {106, "kvLnWt_106"},        {120, "kvLnWt_120"},
    {140, "kvLnWt_140"},    {158, "kvLnWt_158"},    {200, "kvLnWt_200"},        {211, "kvLnWt_211"},
    {-1, "kvLnWt_ByLayer"}, {-2, "kvLnWt_ByBlock"}, {-3, "kvLnWt_ByLwDefault"},
};

constexpr WordRow viewportStandardScale[] = {
    {"Custom scale", "kvViewportStandardScale_CustomScale"},
    {"1:1", "kvViewportStandardScale_1_1"},
    {"1:2", "kvViewportStandardScale_1_2"},
    {"1:4", "kvViewportStandardScale_1_4"},
    {"1:8", "kvViewportStandardScale_1_8"},
    {"1:10", "kvViewportStandardScale_1_10"},
    {"1:16", "kvViewportStandardScale_1_16"},
    {"1:20", "kvViewportStandardScale_1_20"},
    {"1:30", "kvViewportStandardScale_1_30"},
    {"1:40", "kvViewportStandardScale_1_40"},
    {"1:50", "kvViewportStandardScale_1_50"},
    {"1:100", "kvViewportStandardScale_1_100"},
    {"2:1", "kvViewportStandardScale_2_1"},
    {"4:1", "kvViewportStandardScale_4_1"},
    {"8:1", "kvViewportStandardScale_8_1"},
    {"10:1", "kvViewportStandardScale_10_1"},
    {"100:1", "kvViewportStandardScale_100_1"},
    {"1/128\" = 1'-0\"", "kvViewportStandardScale_1_128in_1ft"},
    {"1/64\" = 1'-0\"", "kvViewportStandardScale_1_64in_1ft"},
    {"1/32\" = 1'-0\"", "kvViewportStandardScale_1_32in_1ft"},
    {"1/16\" = 1'-0\"", "kvViewportStandardScale_1_16in_1ft"},
    {"3/32\" = 1'-0\"", "kvViewportStandardScale_3_32in_1ft"},
    {"1/8\" = 1'-0\"", "kvViewportStandardScale_1_8in_1ft"},
    {"3/16\" = 1'-0\"", "kvViewportStandardScale_3_16in_1ft"},
    {"1/4\" = 1'-0\"", "kvViewportStandardScale_1_4in_1ft"},
    {"3/8\" = 1'-0\"", "kvViewportStandardScale_3_8in_1ft"},
    {"1/2\" = 1'-0\"", "kvViewportStandardScale_1_2in_1ft"},
    {"3/4\" = 1'-0\"", "kvViewportStandardScale_3_4in_1ft"},
    {"1\" = 1'-0\"", "kvViewportStandardScale_1in_1ft"},
    {"3\" = 1'-0\"", "kvViewportStandardScale_3in_1ft"},
    {"6\" = 1'-0\"", "kvViewportStandardScale_6in_1ft"},
    {"1'-0\" = 1'-0\"", "kvViewportStandardScale_1ft_1ft"},
};

constexpr WordRow textJustification[] = {
    {"Center", "kvTextJustification_Center"},
    {"Right", "kvTextJustification_Right"},
    {"Aligned", "kvTextJustification_Aligned"},
    {"Middle", "kvTextJustification_Middle"},
    {"Fit", "kvTextJustification_Fit"},
    {"Top Left", "kvTextJustification_TopLeft"},
    {"Top Center", "kvTextJustification_TopCenter"},
    {"Top Right", "kvTextJustification_TopRight"},
    {"Middle Left", "kvTextJustification_MiddleLeft"},
    {"Middle Center", "kvTextJustification_MiddleCenter"},
    {"Middle Right", "kvTextJustification_MiddleRight"},
    {"Bottom Left", "kvTextJustification_BottomLeft"},
    {"Bottom Center", "kvTextJustification_BottomCenter"},
    {"Bottom Right", "kvTextJustification_BottomRight"},
};

constexpr WordRow tableCellAlignment[] = {
    {"Top Left", "kvTableCellAlignment_TopLeft"},           {"Top Center", "kvTableCellAlignment_TopCenter"},
    {"Top Right", "kvTableCellAlignment_TopRight"},         {"Middle Left", "kvTableCellAlignment_MiddleLeft"},
    {"Middle Center", "kvTableCellAlignment_MiddleCenter"}, {"Middle Right", "kvTableCellAlignment_MiddleRight"},
    {"Bottom Left", "kvTableCellAlignment_BottomLeft"},     {"Bottom Center", "kvTableCellAlignment_BottomCenter"},
    {"Bottom Right", "kvTableCellAlignment_BottomRight"},
};

constexpr WordRow noteJustification[] = {
    {"Top Left", "kvNoteJustification_TopLeft"},           {"Top Center", "kvNoteJustification_TopCenter"},
    {"Top Right", "kvNoteJustification_TopRight"},         {"Middle Left", "kvNoteJustification_MiddleLeft"},
    {"Middle Center", "kvNoteJustification_MiddleCenter"}, {"Middle Right", "kvNoteJustification_MiddleRight"},
    {"Bottom Left", "kvNoteJustification_BottomLeft"},     {"Bottom Center", "kvNoteJustification_BottomCenter"},
    {"Bottom Right", "kvNoteJustification_BottomRight"},
};

constexpr NumberRow noteDirection[] = {
    {5, "kvNoteDirection_ByStyle"},
    {3, "kvNoteDirection_Vertical"},
    {1, "kvNoteDirection_Horizontal"},
};

constexpr NumberRow leaderType[] = {
    {3, "kvLeaderType_SplineWithArrow"},
    {2, "kvLeaderType_LineWithArrow"},
    {1, "kvLeaderType_SplineWithNoArrow"},
    {0, "kvLeaderType_LineWithNoArrow"},
};

constexpr NumberRow tableBordersLineType[] = {
    {2, "kvTableBordersLineType_HorizontalInside"}, {3, "kvTableBordersLineType_HorizontalBottom"},
    {4, "kvTableBordersLineType_VerticalLeft"},     {5, "kvTableBordersLineType_VerticalInside"},
    {6, "kvTableBordersLineType_VerticalRight"},    {1, "kvTableBordersLineType_HorizontalTop"},
};

constexpr NumberRow dimensionStyleAngleFormat[] = {
    {3, "kvDimensionStyleAngleFormat_Radians"},
    {2, "kvDimensionStyleAngleFormat_Grads"},
    {1, "kvDimensionStyleAngleFormat_Deg_Min_Sec"},
    {0, "kvDimensionStyleAngleFormat_DecimalDegrees"},
};

constexpr NumberRow dualDimensionFormat[] = {
    {1, "kvDualDimensionFormat_Scientific"},           {3, "kvDualDimensionFormat_Engineering"},
    {4, "kvDualDimensionFormat_ArchitecturalStacked"}, {5, "kvDualDimensionFormat_FractionalStacked"},
    {6, "kvDualDimensionFormat_Architectural"},        {7, "kvDualDimensionFormat_Fractional"},
    {8, "kvDualDimensionFormat_WindowsDesktop"},       {2, "kvDualDimensionFormat_Decimal"},
};

constexpr NumberRow linearDimensionFormat[] = {
    {1, "kvLinearDimensionFormat_Scientific"},     {3, "kvLinearDimensionFormat_Engineering"},
    {4, "kvLinearDimensionFormat_Architectural"},  {5, "kvLinearDimensionFormat_Fractional"},
    {6, "kvLinearDimensionFormat_WindowsDesktop"}, {2, "kvLinearDimensionFormat_Decimal"},
};

constexpr NumberRow unitPrecision[] = {
    {1, "kvUnitPrecision_1"}, {2, "kvUnitPrecision_2"}, {3, "kvUnitPrecision_3"},
    {4, "kvUnitPrecision_4"}, {5, "kvUnitPrecision_5"}, {6, "kvUnitPrecision_6"},
    {7, "kvUnitPrecision_7"}, {8, "kvUnitPrecision_8"}, {0, "kvUnitPrecision_0"},
};

constexpr FlagRow dualDimensionInsertPlacement[] = {
    {true, "kvDualDimensionInsertPlacement_BelowPrimaryUnits"},
    {false, "kvDualDimensionInsertPlacement_AfterPrimaryUnits"},
};

constexpr NumberRow linearDimensionFractionalDisplay[] = {
    {2, "kvLinearDimensionFractionalDisplay_NotStacked"},
    {1, "kvLinearDimensionFractionalDisplay_Diagonal"},
    {0, "kvLinearDimensionFractionalDisplay_Horizontal"},
};

// The separator comes by its name or as the character itself.
constexpr WordRow linearDimensionDecimalSeparator[] = {
    {"Comma", "kvLinearDimensionDecimalSeparator_Comma"},   {",", "kvLinearDimensionDecimalSeparator_Comma"},
    {"Space", "kvLinearDimensionDecimalSeparator_Space"},   {" ", "kvLinearDimensionDecimalSeparator_Space"},
    {"Period", "kvLinearDimensionDecimalSeparator_Period"}, {".", "kvLinearDimensionDecimalSeparator_Period"},
};

constexpr NumberRow dimensionFitGeometry[] = {
    {4, "kvDimensionFitGeometry_KeepTextBetweenExtensionLines"},
    {3, "kvDimensionFitGeometry_Automatic"},
    {2, "kvDimensionFitGeometry_Text"},
    {1, "kvDimensionFitGeometry_Arrows"},
    {0, "kvDimensionFitGeometry_TextAndArrows"},
};

constexpr NumberRow dimensionFitDimensionText[] = {
    {2, "kvDimensionFitDimensionText_AboveDimensionLineWithoutLeader"},
    {1, "kvDimensionFitDimensionText_AboveDimensionLineWithLeader"},
    {0, "kvDimensionFitDimensionText_NextToDimensionLine"},
};

constexpr NumberRow dimensionTextHorizontalPosition[] = {
    {4, "kvDimensionTextHorizontalPosition_OverExtLine2"}, {3, "kvDimensionTextHorizontalPosition_OverExtLine1"},
    {2, "kvDimensionTextHorizontalPosition_AtExtLine2"},   {1, "kvDimensionTextHorizontalPosition_AtExtLine1"},
    {0, "kvDimensionTextHorizontalPosition_Centered"},
};

constexpr NumberRow dimensionTextVerticalPosition[] = {
    {3, "kvDimensionTextVerticalPosition_JIS"},
    {2, "kvDimensionTextVerticalPosition_Outside"},
    {1, "kvDimensionTextVerticalPosition_Above"},
    {0, "kvDimensionTextVerticalPosition_Centered"},
};

constexpr NumberRow dimensionTextAlignment[] = {
    {2, "kvDimensionTextAlignment_AlignWithDimensionLines"},
    {1, "kvDimensionTextAlignment_AlignHorizontally"},
    {0, "kvDimensionTextAlignment_UseISOStandard"},
};

constexpr NumberRow toleranceCalculation[] = {
    {4, "kvToleranceCalculation_Basic"},     {3, "kvToleranceCalculation_Limits"},
    {2, "kvToleranceCalculation_Deviation"}, {1, "kvToleranceCalculation_Symmetrical"},
    {0, "kvToleranceCalculation_None"},
};

constexpr NumberRow toleranceVerticalTextJustification[] = {
    {2, "kvToleranceVerticalTextJustification_Top"},
    {1, "kvToleranceVerticalTextJustification_Middle"},
    {0, "kvToleranceVerticalTextJustification_Bottom"},
};

constexpr NumberRow arcSymbolType[] = {
    {2, "kvArcSymbolType_None"},
    {1, "kvArcSymbolType_AboveDimensionText"},
    {0, "kvArcSymbolType_PrecedingDimensionText"},
};

constexpr NumberRow dimensionArrowType[] = {
    {1, "kvDimensionArrowType_ClosedBlank"},
    {2, "kvDimensionArrowType_Closed"},
    {3, "kvDimensionArrowType_Dot"},
    {4, "kvDimensionArrowType_ArchitecturalTick"},
    {5, "kvDimensionArrowType_Oblique"},
    {6, "kvDimensionArrowType_Open"},
    {7, "kvDimensionArrowType_OriginIndicator"},
    {8, "kvDimensionArrowType_OriginIndicator2"},
    {9, "kvDimensionArrowType_RightAngle"},
    {10, "kvDimensionArrowType_Open30"},
    {11, "kvDimensionArrowType_DotSmall"},
    {12, "kvDimensionArrowType_DotBlank"},
    {13, "kvDimensionArrowType_DotSmallBlank"},
    {14, "kvDimensionArrowType_Box"},
    {15, "kvDimensionArrowType_BoxFilled"},
    {16, "kvDimensionArrowType_DatumTriangle"},
    {17, "kvDimensionArrowType_DatumTriangleFilled"},
    {18, "kvDimensionArrowType_Integral"},
    {19, "kvDimensionArrowType_None"},
    {20, "kvDimensionArrowType_Custom"},
    {0, "kvDimensionArrowType_ClosedFilled"},
};

constexpr NumberRow dimensionCenterMarkDisplay[] = {
    {2, "kvDimensionCenterMarkDisplay_None"},
    {1, "kvDimensionCenterMarkDisplay_AsCenterLine"},
    {0, "kvDimensionCenterMarkDisplay_AsMark"},
};

constexpr NumberRow dimensionScale[] = {
    {1, "kvDimensionScale_ScaleDimensionsAccordingToSheet"},
    {2, "kvDimensionScale_UseScaleFactor"},
};

constexpr NumberRow arcLengthSymbols[] = {
    {2, "kvArcLengthSymbols_None"},
    {1, "kvArcLengthSymbols_AboveDimText"},
    {0, "kvArcLengthSymbols_BeforeDimText"},
};

constexpr WordRow viewportShadePrintStyle[] = {
    {"Wireframe", "kvViewportShadePrintStyle_Wireframe"},
    {"Hidden", "kvViewportShadePrintStyle_Hidden"},
    {"Rendered", "kvViewportShadePrintStyle_Rendered"},
};

constexpr WordRow embeddedObjectPrintQuality[] = {
    {"Monochrome", "kvEmbeddedObjectPrintQuality_Monochrome"},
    {"High graphics", "kvEmbeddedObjectPrintQuality_HighGraphics"},
};

constexpr WordRow richLineJustification[] = {
    {"Zero", "kvRichLineJustification_Zero"},
    {"Bottom", "kvRichLineJustification_Bottom"},
};

// "Qudratic" is the API's spelling, here and for the mesh.
constexpr WordRow polyLine3DFitSmooth[] = {
    {"Quadratic", "kvPolyLine3DFitSmooth_Qudratic"},
    {"Cubic", "kvPolyLine3DFitSmooth_Cubic"},
};

constexpr WordRow polygonMeshFitSmooth[] = {
    {"Quadratic", "kvPolygonMeshFitSmooth_Qudratic"},
    {"Cubic", "kvPolygonMeshFitSmooth_Cubic"},
    {"Bezier", "kvPolygonMeshFitSmooth_Bezier"},
};

constexpr NumberRow tableCellType[] = {
    {1, "kvTableCellType_Data"},
    {3, "kvTableCellType_Header"},
    {2, "kvTableCellType_Title"},
};

constexpr WordRow blockInsertUnits[] = {
    {"Inches", "kvBlockInsertUnits_Inches"},
    {"Feet", "kvBlockInsertUnits_Feet"},
    {"Miles", "kvBlockInsertUnits_Miles"},
    {"Millimeters", "kvBlockInsertUnits_Millimeters"},
    {"Centimeters", "kvBlockInsertUnits_Centimeters"},
    {"Meters", "kvBlockInsertUnits_Meters"},
    {"Kilometers", "kvBlockInsertUnits_Kilometers"},
    {"Microinches", "kvBlockInsertUnits_Microinches"},
    {"Mils", "kvBlockInsertUnits_Mils"},
    {"Yards", "kvBlockInsertUnits_Yards"},
    {"Angstroms", "kvBlockInsertUnits_Angstroms"},
    {"Nanometers", "kvBlockInsertUnits_Nanometers"},
    {"Microns", "kvBlockInsertUnits_Microns"},
    {"Decimeters", "kvBlockInsertUnits_Decimeters"},
    {"Dekameters", "kvBlockInsertUnits_Dekameters"},
    {"Hectometers", "kvBlockInsertUnits_Hectometers"},
    {"Gigameters", "kvBlockInsertUnits_Gigameters"},
    {"Astronomical", "kvBlockInsertUnits_Astronomical"},
    {"Light Years", "kvBlockInsertUnits_LightYears"},
    {"Parsecs", "kvBlockInsertUnits_Parsecs"},
};

constexpr EnumTable tables[] = {
    {"kvLineWeight_e", "kvLnWt_000", lineWeight},
    {"kvViewportStandardScale_e", "kvViewportStandardScale_ScaleToFit", viewportStandardScale},
    {"kvTextJustification_e", "kvTextJustification_Left", textJustification},
    {"kvTableCellAlignment_e", "kvTableCellAlignment_TopLeft", tableCellAlignment},
    {"kvNoteJustification_e", "kvNoteJustification_TopLeft", noteJustification},
    {"kvNoteDirection_e", "kvNoteDirection_ByStyle", noteDirection},
    {"kvLeaderType_e", "kvLeaderType_LineWithNoArrow", leaderType},
    {"kvTableBordersLineType_e", "kvTableBordersLineType_HorizontalTop", tableBordersLineType},
    {"kvDimensionStyleAngleFormat_e", "kvDimensionStyleAngleFormat_DecimalDegrees", dimensionStyleAngleFormat},
    {"kvDualDimensionFormat_e", "kvDualDimensionFormat_Scientific", dualDimensionFormat},
    {"kvLinearDimensionFormat_e", "kvLinearDimensionFormat_Scientific", linearDimensionFormat},
    {"kvUnitPrecision_e", "kvUnitPrecision_0", unitPrecision},
    {"kvDualDimensionInsertPlacement_e", "kvDualDimensionInsertPlacement_BelowPrimaryUnits",
     dualDimensionInsertPlacement},
    {"kvLinearDimensionFractionalDisplay_e", "kvLinearDimensionFractionalDisplay_Horizontal",
     linearDimensionFractionalDisplay},
    {"kvLinearDimensionDecimalSeparator_e", "kvLinearDimensionDecimalSeparator_Comma", linearDimensionDecimalSeparator},
    {"kvDimensionFitGeometry_e", "kvDimensionFitGeometry_TextAndArrows", dimensionFitGeometry},
    {"kvDimensionFitDimensionText_e", "kvDimensionFitDimensionText_NextToDimensionLine", dimensionFitDimensionText},
    {"kvDimensionTextHorizontalPosition_e", "kvDimensionTextHorizontalPosition_Centered",
     dimensionTextHorizontalPosition},
    {"kvDimensionTextVerticalPosition_e", "kvDimensionTextVerticalPosition_Centered", dimensionTextVerticalPosition},
    {"kvDimensionTextAlignment_e", "kvDimensionTextAlignment_UseISOStandard", dimensionTextAlignment},
    {"kvToleranceCalculation_e", "kvToleranceCalculation_None", toleranceCalculation},
    {"kvToleranceVerticalTextJustification_e", "kvToleranceVerticalTextJustification_Bottom",
     toleranceVerticalTextJustification},
    {"kvArcSymbolType_e", "kvArcSymbolType_PrecedingDimensionText", arcSymbolType},
    {"kvDimensionArrowType_e", "kvDimensionArrowType_ClosedFilled", dimensionArrowType},
    {"kvDimensionCenterMarkDisplay_e", "kvDimensionCenterMarkDisplay_None", dimensionCenterMarkDisplay},
    {"kvDimensionScale_e", "kvDimensionScale_UseScaleFactor", dimensionScale},
    {"kvArcLengthSymbols_e", "kvArcLengthSymbols_BeforeDimText", arcLengthSymbols},
    {"kvViewportShadePrintStyle_e", "kvViewportShadePrintStyle_AsDisplayed", viewportShadePrintStyle},
    {"kvEmbeddedObjectPrintQuality_e", "kvEmbeddedObjectPrintQuality_LowGraphics", embeddedObjectPrintQuality},
    {"kvRichLineJustification_e", "kvRichLineJustification_Top", richLineJustification},
    {"kvPolyLine3DFitSmooth_e", "kvPolyLine3DFitSmooth_None", polyLine3DFitSmooth},
    {"kvPolygonMeshFitSmooth_e", "kvPolygonMeshFitSmooth_None", polygonMeshFitSmooth},
    {"kvTableCellType_e", "kvTableCellType_Title", tableCellType},
    {"kvBlockInsertUnits_e", "kvBlockInsertUnits_Unitless", blockInsertUnits, "CZtUtils"},
};
static_assert(std::size(tables) == static_cast<std::size_t>(EnumKind::BlockInsertUnits) + 1);
} // namespace

std::span<const EnumTable> EnumTables()
{
    return tables;
}
} // namespace kv
