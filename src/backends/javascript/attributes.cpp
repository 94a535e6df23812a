// JavaScript texts of attribute definitions; the logic stands in objects/attributes.cpp.
#include "backends/javascript/object.h"
#include "backends/text/enumerations.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectJavaScript::WriteInsertAttributeDefinition(
    const QString& variable, const QString& value, const QString& tag, const QString& prompt, const OdGePoint3d& point,
    const QString& style, double height, const QString& justification, double rotation, const AttributeFlags& flags)
{
    return Statement(
        "%1 var %19 = mSkMgr.InsertAttributeDefinition(\"%3\", \"%4\", \"%5\", %6, %7, %8, \"%9\", %10, \"%11\", %12, %13, %14, %15, %16, %17, %18);%2",
        value, tag, prompt, point, style, Fixed{height},
        kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::TextJustification, justification), Fixed{rotation},
        FlagWord(flags.constant), FlagWord(flags.invisible), FlagWord(flags.preset), FlagWord(flags.verify),
        FlagWord(flags.lockPosition), FlagWord(false), variable);
}
