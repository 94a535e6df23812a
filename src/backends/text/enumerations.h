// Enumeration constants of the automation API in the form that a language writes.
#pragma once

#include <QString>

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

/// How a language writes a constant.
enum class EnumForm
{
    Bare,      ///< kvX_Name
    Qualified, ///< kvX_e.kvX_Name
    Morvane,   ///< Morvane.kvX_e.kvX_Name
};

/// Gives the constant for a number of the host; line weights are in hundredths of a millimetre. A number without a row
/// gives the default of the enumeration. Empty when the kind isn't told by a number.
[[nodiscard]] QString EnumConstant(EnumForm form, EnumKind kind, int number);

/// Gives the constant for a display word, which is compared with the words as the installed translators give them at
/// this moment; letter case counts. A word without a row gives the default of the enumeration. Empty when the kind
/// isn't told by a word.
[[nodiscard]] QString EnumConstant(EnumForm form, EnumKind kind, const QString& displayWord);

/// Gives the constant for a flag. Empty when the kind isn't told by a flag: only
/// EnumKind::DualDimensionInsertPlacement is.
[[nodiscard]] QString EnumConstantOfFlag(EnumForm form, EnumKind kind, bool flag);

/// Gives the constant for the line weight of an entity or layer, in hundredths of a millimetre. It differs from
/// EnumKind::LineWeight in the default, which is the host's default weight and not the weight 0.
[[nodiscard]] QString EntityLineWeight(EnumForm form, int hundredths);

/// Gives a qualified constant "kvX_e.kvX_Name" in another form.
[[nodiscard]] QString FormOfConstant(EnumForm form, const QString& qualified);
} // namespace kv
