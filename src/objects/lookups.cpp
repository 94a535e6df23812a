// The variables of objects, known to the macro or fetched by their handle.
#include "core/variable_names.h"
#include "host/db/symbols.h"
#include "objects/object_converter.h"
#include "objects/variant_readers.h"

bool CZtConverterKVAPIObject::GetObjectTypeName(OdDbHandle handle, const OdRxClass* objectClass, QString& typeName)
{
    const QString* variableType = CZtConverterKVAPIImpl::VariableType(objectClass);
    if (variableType == nullptr)
    {
        return false;
    }
    typeName = *variableType;
    if (objectClass == OdDbViewTableRecord::desc() && ACTIVE_DOCUMENT() != nullptr)
    {
        const OdDbObjectPtr object = ACTIVE_DOCUMENT()->GetZtDatabase()->getOdDbObjectId(handle).openObject();
        const auto view = OdSmartPtr<OdDbViewTableRecord>::cast(object);
        if (view && view->isPaperspaceView())
        {
            typeName.replace(QLatin1String("ModelNamedView"), QLatin1String("SheetNamedView"));
        }
    }
    return true;
}

QString CZtConverterKVAPIObject::GetObjectByHandle(OdDbHandle handle, const OdRxClass* objectClass, QString& variable)
{
    variable.clear();
    QString typeName;
    if (!GetObjectTypeName(handle, objectClass, typeName))
    {
        return {};
    }
    if (const ObjectPair* known = Converter().FindKnownObject(handle))
    {
        variable = VariableName(typeName, known->number, PlainPointerMark::Removed);
        return {};
    }
    const std::int32_t number = ++Counters().ObjectSequence;
    variable = VariableName(typeName, number, PlainPointerMark::Removed);
    return WriteGetObjectByHandle(variable, typeName, handle.ascii(), number);
}

QString CZtConverterKVAPIObject::TakeName(const Creation& creation, const char* name, const QString& recordName)
{
    const CZtVariant value = creation.properties.TakeProperty(name, &creation.consumed);
    return value.IsNull() ? recordName : TextOf(value);
}
