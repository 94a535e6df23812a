// VB.NET texts of texts, notes and tolerances; the logic stands in objects/texts.cpp.
#include "backends/text/enumerations.h"
#include "backends/vbnet/object.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectVbNet::WriteInsertSimpleNote(const QString& variable, const OdGePoint3d& point,
                                                            double height, double rotation, const QString& text)
{
    return Statement("%1%9 = kvSketchManager.InsertSimpleNote( %3, %4, %5, %6, %7, \"%8\" )%2", point, Fixed{height},
                     Fixed{rotation}, text, variable);
}

QString CZtConverterKVAPIObjectVbNet::WriteInsertNote(const QString& variable, const OdGePoint3d& corner1,
                                                      const OdGePoint3d& corner2, const QString& contents)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1Dim strArray%12(0) As String%2"
                     "%1strArray%12(0) = \"%3\"%2"
                     "%1%11 = kvSketchManager.InsertNote( %4, %5, %6, %7, %8, %9, %10 )%2",
                     JoinedLines(contents), corner1, corner2, kv::Fill("strArray%1", number), variable, number);
}

QString CZtConverterKVAPIObjectVbNet::WriteInsertTolerance(const QString& variable, const OdGePoint3d& point,
                                                           const QString& text)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1Dim Coordinates%3(2) As Double%2%2"
                     "%4"
                     "%1%6 = kvSketchManager.InsertTolerance( Coordinates%3, \"%5\" )%2",
                     number, WriteCoordinateElements3D(number, std::span(&point, 1)), text, variable);
}

QString CZtConverterKVAPIObjectVbNet::WriteSetNoteDirection(const QString& variable, const QString& word,
                                                            const QString& constant)
{
    return Statement("%1%3.%4 = %5%2", variable, word, kv::FormOfConstant(kv::EnumForm::Morvane, constant));
}

QString CZtConverterKVAPIObjectVbNet::WriteSetNoteJustification(const QString& variable, const QString& word,
                                                                const QString& displayWord)
{
    return Statement("%1%3.%4 = %5%2", variable, word,
                     kv::EnumConstant(kv::EnumForm::Morvane, kv::EnumKind::NoteJustification, displayWord));
}
