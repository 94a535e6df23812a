// The enumerations of the automation API that settings of drawing objects take.
#pragma once

namespace kv
{
/// The enumerations that values of the journal are turned into.
enum class EnumKind : int
{
    LineWeight = 0,
    ViewportStandardScale = 1,
    TextJustification = 2,
    TableCellAlignment = 3,
    NoteJustification = 4,
    NoteDirection = 5,
    LeaderType = 6,
    TableBordersLineType = 7,
    DimensionStyleAngleFormat = 8,
    DualDimensionFormat = 9,
    LinearDimensionFormat = 10,
    UnitPrecision = 11,
    DualDimensionInsertPlacement = 12,
    LinearDimensionFractionalDisplay = 13,
    LinearDimensionDecimalSeparator = 14,
    DimensionFitGeometry = 15,
    DimensionFitDimensionText = 16,
    DimensionTextHorizontalPosition = 17,
    DimensionTextVerticalPosition = 18,
    DimensionTextAlignment = 19,
    ToleranceCalculation = 20,
    ToleranceVerticalTextJustification = 21,
    ArcSymbolType = 22,
    DimensionArrowType = 23,
    DimensionCenterMarkDisplay = 24,
    DimensionScale = 25,
    ArcLengthSymbols = 26,
    ViewportShadePrintStyle = 27,
    EmbeddedObjectPrintQuality = 28,
    RichLineJustification = 29,
    PolyLine3DFitSmooth = 30,
    PolygonMeshFitSmooth = 31,
    TableCellType = 32,
    BlockInsertUnits = 33,
};
} // namespace kv
