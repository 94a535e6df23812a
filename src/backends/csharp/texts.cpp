// C# texts of texts, notes and tolerances; the logic stands in objects/texts.cpp.
#include "backends/csharp/object.h"
#include "backends/text/enumerations.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectCSharp::WriteInsertSimpleNote(const QString& variable, const OdGePoint3d& point,
                                                             double height, double rotation, const QString& text)
{
    return Statement("%1%9 = kvSketchManager.InsertSimpleNote( %3, %4, %5, %6, %7, \"%8\" );%2", point, Fixed{height},
                     Fixed{rotation}, text, variable);
}

QString CZtConverterKVAPIObjectCSharp::WriteInsertNote(const QString& variable, const OdGePoint3d& corner1,
                                                       const OdGePoint3d& corner2, const QString& contents)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1string[] strArray%12 = new string[] { \"%3\" };%2"
                     "%1%11 = kvSketchManager.InsertNote( %4, %5, %6, %7, %8, %9, %10 );%2",
                     contents, corner1, corner2, kv::Fill("strArray%1", number), variable, number);
}

QString CZtConverterKVAPIObjectCSharp::WriteInsertTolerance(const QString& variable, const OdGePoint3d& point,
                                                            const QString& text)
{
    [[maybe_unused]] const std::int32_t spent = NextLocalNumber();
    return Statement("%1%7 = kvSketchManager.InsertTolerance( new double[]{%3,%4,%5}, \"%6\" );%2", point, text,
                     variable);
}

QString CZtConverterKVAPIObjectCSharp::WriteSetNoteDirection(const QString& variable, const QString& word,
                                                             const QString& constant)
{
    return Statement("%1%3.%4 = %5;%2", variable, word, kv::FormOfConstant(kv::EnumForm::Qualified, constant));
}

QString CZtConverterKVAPIObjectCSharp::WriteSetNoteJustification(const QString& variable, const QString& word,
                                                                 const QString& displayWord)
{
    return Statement("%1%3.%4 = %5;%2", variable, word,
                     kv::EnumConstant(kv::EnumForm::Qualified, kv::EnumKind::NoteJustification, displayWord));
}
