// JavaScript texts of texts, notes and tolerances; the logic stands in objects/texts.cpp.
#include "backends/javascript/object.h"
#include "backends/text/enumerations.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectJavaScript::WriteInsertSimpleNote(const QString& variable, const OdGePoint3d& point,
                                                                 double height, double rotation, const QString& text)
{
    return Statement("%1var %9 = mSkMgr.InsertSimpleNote(%3, %4, %5, %6, %7, \"%8\");%2", point, Fixed{height},
                     Fixed{rotation}, text, variable);
}

QString CZtConverterKVAPIObjectJavaScript::WriteInsertNote(const QString& variable, const OdGePoint3d& corner1,
                                                           const OdGePoint3d& corner2, const QString& contents)
{
    ++Counters().LocalNameSequence;
    QString text = Line("%1var strArray = Array();\n");
    text += Line("%1strArray[0] = \"%2\";\n", contents);
    text += Statement("%1var %9 = mSkMgr.InsertNote(%3, %4, %5, %6, %7, %8, strArray);%2", corner1, corner2, variable);
    return text;
}

QString CZtConverterKVAPIObjectJavaScript::WriteInsertTolerance(const QString& variable, const OdGePoint3d& point,
                                                                const QString& text)
{
    const std::int32_t number = NextLocalNumber();
    QString code = DeclarePoints("polyPoints", number, OdArray<OdGePoint3d>{point});
    code += Statement("%1var %5 = mSkMgr.InsertTolerance(polyPoints%3, \"%4\");%2", number, text, variable);
    return code;
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetNoteDirection(const QString& variable, const QString& word,
                                                                 const QString& constant)
{
    return Statement("%1%3.put_%4(\"%5\");%2", variable, word, kv::FormOfConstant(kv::EnumForm::Bare, constant));
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetNoteJustification(const QString& variable, const QString& word,
                                                                     const QString& displayWord)
{
    return Statement("%1%3.put_%4(\"%5\");%2", variable, word,
                     kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::NoteJustification, displayWord));
}
