// C++ API texts of texts, notes and tolerances; the logic stands in objects/texts.cpp.
#include "backends/cpp/object.h"
#include "backends/text/enumerations.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectCPP::WriteInsertSimpleNote(const QString& variable, const OdGePoint3d& point,
                                                          double height, double rotation, const QString& text)
{
    return Statement("%1kvSketchManager->InsertSimpleNote( %3, %4, %5, %6, %7, L\"%8\", &%9 );%2", point, Fixed{height},
                     Fixed{rotation}, text, variable);
}

QString CZtConverterKVAPIObjectCPP::WriteInsertNote(const QString& variable, const OdGePoint3d& corner1,
                                                    const OdGePoint3d& corner2, const QString& contents)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1kvStringArray strArray%12;%2"
                     "%1strArray%12.add(L\"%3\");%2"
                     "%1kvSketchManager->InsertNote( %4, %5, %6, %7, %8, %9, %10 ,&%11 );%2",
                     contents, corner1, corner2, kv::Fill("strArray%1", number), variable, number);
}

QString CZtConverterKVAPIObjectCPP::WriteInsertTolerance(const QString& variable, const OdGePoint3d& point,
                                                         const QString& text)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1kvDoubleArray Coordinates%3;%2"
                     "%1Coordinates%3.clear();%2%2"
                     "%1Coordinates%3.add(%4);%2"
                     "%1Coordinates%3.add(%5);%2"
                     "%1Coordinates%3.add(%6);%2"
                     "%1kvSketchManager->InsertTolerance( Coordinates%3, L\"%7\", &%8 );%2",
                     number, point, text, variable);
}

QString CZtConverterKVAPIObjectCPP::WriteSetNoteDirection(const QString& variable, const QString& word,
                                                          const QString& constant)
{
    return Statement("%1%3->put_%4( %5 );%2", variable, word, kv::FormOfConstant(kv::EnumForm::Bare, constant));
}

QString CZtConverterKVAPIObjectCPP::WriteSetNoteJustification(const QString& variable, const QString& word,
                                                              const QString& displayWord)
{
    return Statement("%1%3->put_%4( %5 );%2", variable, word,
                     kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::NoteJustification, displayWord));
}
