// C++ COM texts of texts, notes and tolerances; the logic stands in objects/texts.cpp.
#include "backends/cppcom/object.h"
#include "backends/text/enumerations.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertSimpleNote(const QString& variable, const OdGePoint3d& point,
                                                             double height, double rotation, const QString& text)
{
    return Statement("%1%9 = kvSketchManager->InsertSimpleNote( %3, %4, %5, %6, %7, L\"%8\" );%2", point, Fixed{height},
                     Fixed{rotation}, text, variable);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertNote(const QString& variable, const OdGePoint3d& corner1,
                                                       const OdGePoint3d& corner2, const QString& contents)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1VARIANT strArray%12;%2"
                     "%1strArray%12.vt = ( VT_ARRAY | VT_BSTR );%2"
                     "%1strArray%12.parray = SafeArrayCreateVector( VT_BSTR, 0, 1 );%2"
                     "%1long rgIndices%12;%2"
                     "%1rgIndices%12 = 0;%2"
                     "%1BSTR val%12 = SysAllocString( L\"%3\");%2"
                     "%1SafeArrayPutElement( strArray%12.parray, &rgIndices%12, val%12 );%2"
                     "%1%11 = kvSketchManager->InsertNote( %4, %5, %6, %7, %8, %9, %10 );%2",
                     contents, corner1, corner2, kv::Fill("strArray%1", number), variable, number);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertTolerance(const QString& variable, const OdGePoint3d& point,
                                                            const QString& text)
{
    const std::int32_t number = NextLocalNumber();
    const SafeArrayText array(SafeArrayText::Kind::Doubles, "variant", number);
    QString code = array.Declare(CurrentIndent(), 3);
    code += kv::LineEnd();
    code += array.Elements(CurrentIndent(), CoordinateTexts(point, kv::FixedText));
    code += Statement("%1%5 = kvSketchManager->InsertTolerance( variant%3, L\"%4\" );%2", number, text, variable);
    return code;
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetNoteDirection(const QString& variable, const QString& word,
                                                             const QString& constant)
{
    return Statement("%1%3->put_%4( %5 );%2", variable, word, kv::FormOfConstant(kv::EnumForm::Bare, constant));
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetNoteJustification(const QString& variable, const QString& word,
                                                                 const QString& displayWord)
{
    return Statement("%1%3->put_%4( %5 );%2", variable, word,
                     kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::NoteJustification, displayWord));
}
