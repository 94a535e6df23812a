// The events of drawing objects, the creation pass and the property pass.
#include "objects/object_converter.h"

#include "core/type_table.h"
#include "host/db/blocks.h"
#include "host/db/curves.h"
#include "host/db/dimensions.h"
#include "host/db/polylines.h"
#include "host/db/text.h"
#include "host/kernel/services.h"
#include "objects/variant_readers.h"

CZtConverterKVAPIImpl& CZtConverterKVAPIObject::Converter() const
{
    if (converter_ == nullptr)
    {
        throw OdError(eNullObjectPointer);
    }
    return *converter_;
}

PropertyList CZtConverterKVAPIObject::PropertiesOf(const CZtPropertyList& elements) const
{
    return {elements, words_, Converter().GetHostContext()};
}

ResultCode CZtConverterKVAPIObject::ConvertObjectAdded(const CZtObjectAdded& event, QString& text)
{
    const OdRxClass* objectClass = event.GetObjectClass();
    if (objectClass == nullptr)
    {
        return ResultError;
    }
    if (!kv::FactsOf(objectClass).isSupported)
    {
        return ResultNormal;
    }
    PropertyList properties = PropertiesOf(event.GetProperties());
    PropertyList remaining = PropertiesOf(event.GetDefaultProperties());
    QString created;
    if (ConvertCreation(objectClass, event.GetObjectHandle(), properties, remaining, created) != ResultNormal)
    {
        return ResultError;
    }
    text += created;
    text += WriteObjectAddedEnd();
    return ResultNormal;
}

ResultCode CZtConverterKVAPIObject::ConvertObjectModified(const CZtObjectModified& event, QString& text)
{
    const OdRxClass* objectClass = event.GetObjectClass();
    if (objectClass == nullptr)
    {
        return ResultError;
    }
    if (!kv::FactsOf(objectClass).isSupported || event.GetProperties().empty())
    {
        return ResultNormal;
    }
    PropertyList properties = PropertiesOf(event.GetProperties());
    const QString comment = WriteObjectModifiedComment(objectClass->name());
    QString changes;
    if (ConvertModification(objectClass, event.GetObjectHandle(), properties, changes) != ResultNormal)
    {
        return ResultError;
    }
    // A modification that turns into nothing leaves no comment.
    if (!changes.isEmpty())
    {
        text += comment;
        text += changes;
        text += WriteObjectModifiedEnd();
    }
    return ResultNormal;
}

ResultCode CZtConverterKVAPIObject::ConvertPropertyChanged(CZtPropertyChanged& event, QString& text)
{
    if (event.GetObjectClass() == nullptr)
    {
        return ResultError;
    }
    // The event is itself the one property.
    PropertyList properties(event, words_, Converter().GetHostContext());
    return ConvertProperties(event.GetObjectClass(), event.GetObjectHandle(), properties, {}, text);
}

bool CZtConverterKVAPIObject::IsDimensionClass(const OdRxClass* objectClass)
{
    static const std::array classes = {
        OdDbAlignedDimension::desc(), OdDb2LineAngularDimension::desc(), OdDb3PointAngularDimension::desc(),
        OdDbArcDimension::desc(),     OdDbDiametricDimension::desc(),    OdDbOrdinateDimension::desc(),
        OdDbRadialDimension::desc(),  OdDbRadialDimensionLarge::desc(),  OdDbRotatedDimension::desc()};
    return std::ranges::find(classes, objectClass) != classes.end();
}

ResultCode CZtConverterKVAPIObject::ConvertCreation(const OdRxClass* objectClass, OdDbHandle handle,
                                                    PropertyList& properties, PropertyList& remaining, QString& text)
{
    // Exact classes; a class without a branch is left to its command.
    static const std::unordered_map<const OdRxClass*, CreationBranch> branches = {
        {OdDbLine::desc(), &CZtConverterKVAPIObject::CreateLine},
        {OdDbCircle::desc(), &CZtConverterKVAPIObject::CreateCircle},
        {OdDbPoint::desc(), &CZtConverterKVAPIObject::CreatePoint},
        {OdDbRay::desc(), &CZtConverterKVAPIObject::CreateRay},
        {OdDbArc::desc(), &CZtConverterKVAPIObject::CreateArc},
        {OdDbXline::desc(), &CZtConverterKVAPIObject::CreateInfiniteLine},
        {OdDbEllipse::desc(), &CZtConverterKVAPIObject::CreateEllipse},
        {OdDbPolyline::desc(), &CZtConverterKVAPIObject::CreatePolyline},
        {OdDb3dPolyline::desc(), &CZtConverterKVAPIObject::CreatePolyline3D},
        {OdDbMline::desc(), &CZtConverterKVAPIObject::CreateRichLine},
        {OdDbSpline::desc(), &CZtConverterKVAPIObject::CreateSpline},
        {OdDbLeader::desc(), &CZtConverterKVAPIObject::CreateLeader},
        {OdDbSolid::desc(), &CZtConverterKVAPIObject::CreateSolid},
        {OdDbTrace::desc(), &CZtConverterKVAPIObject::CreateTrace},
        {OdDbFace::desc(), &CZtConverterKVAPIObject::CreateFace},
        {OdDbPolygonMesh::desc(), &CZtConverterKVAPIObject::CreatePolygonMesh},
        {OdDbPolyFaceMesh::desc(), &CZtConverterKVAPIObject::CreatePolyFaceMesh},
        {OdDbText::desc(), &CZtConverterKVAPIObject::CreateSimpleNote},
        {OdDbMText::desc(), &CZtConverterKVAPIObject::CreateNote},
        {OdDbFcf::desc(), &CZtConverterKVAPIObject::CreateTolerance},
        {OdDbAttributeDefinition::desc(), &CZtConverterKVAPIObject::CreateAttributeDefinition},
        {OdDbTextStyleTableRecord::desc(), &CZtConverterKVAPIObject::CreateTextStyle},
        {OdDbLayerTableRecord::desc(), &CZtConverterKVAPIObject::CreateLayer},
        {OdDbLinetypeTableRecord::desc(), &CZtConverterKVAPIObject::CreateLineStyle},
        {OdDbMlineStyle::desc(), &CZtConverterKVAPIObject::CreateRichLineStyle},
        {OdDbBlockReference::desc(), &CZtConverterKVAPIObject::CreateBlockInstance},
        {OdDbRasterImage::desc(), &CZtConverterKVAPIObject::CreatePicture},
        {OdDbShape::desc(), &CZtConverterKVAPIObject::CreateShape},
        {OdDbGroup::desc(), &CZtConverterKVAPIObject::CreateGroup},
        {OdDbViewport::desc(), &CZtConverterKVAPIObject::CreateViewport},
        {OdDbBlockTableRecord::desc(), &CZtConverterKVAPIObject::CreateBlockDefinition},
        {OdDbAlignedDimension::desc(), &CZtConverterKVAPIObject::CreateAlignedDimension},
        {OdDbRotatedDimension::desc(), &CZtConverterKVAPIObject::CreateRotatedDimension},
        {OdDb2LineAngularDimension::desc(), &CZtConverterKVAPIObject::CreateTwoLineDimension},
        {OdDb3PointAngularDimension::desc(), &CZtConverterKVAPIObject::CreateThreePointDimension},
        {OdDbArcDimension::desc(), &CZtConverterKVAPIObject::CreateArcDimension},
        {OdDbOrdinateDimension::desc(), &CZtConverterKVAPIObject::CreateOrdinateDimension},
        {OdDbDiametricDimension::desc(), &CZtConverterKVAPIObject::CreateDiametricDimension},
        {OdDbRadialDimension::desc(), &CZtConverterKVAPIObject::CreateRadialDimension},
        {OdDbRadialDimensionLarge::desc(), &CZtConverterKVAPIObject::CreateJoggedDimension},
        {OdDbDimStyleTableRecord::desc(), &CZtConverterKVAPIObject::CreateDimensionStyle},
        {OdDbTable::desc(), &CZtConverterKVAPIObject::CreateTable},
        {OdDbTableStyle::desc(), &CZtConverterKVAPIObject::CreateTableStyle},
    };
    text.clear();
    const ObjectPair* known = Converter().FindKnownObject(handle);
    if (known == nullptr)
    {
        return ResultNormal;
    }
    QString variable;
    if (QString typeName; GetObjectTypeName(handle, objectClass, typeName))
    {
        variable = VariableName(typeName, known->number, PlainPointerMark::Removed);
        if (CZtDocument* document = ACTIVE_DOCUMENT())
        {
            createdObjects_.Set(document->GetZtDatabase()->getOdDbObjectId(handle), typeName, known->number);
        }
    }
    ConsumedProperties consumed;
    if (const auto branch = branches.find(objectClass); branch != branches.end())
    {
        text = (this->*branch->second)({properties, consumed, handle, variable});
    }
    remaining.DropConsumed(consumed);
    if (text.isEmpty())
    {
        return ResultNormal;
    }
    QString settings;
    const ResultCode result = ConvertProperties(objectClass, handle, remaining, variable, settings);
    text += settings;
    return result;
}

ResultCode CZtConverterKVAPIObject::ConvertModification(const OdRxClass* objectClass, OdDbHandle handle,
                                                        PropertyList& properties, QString& text)
{
    return handle.isNull() ? ResultError : ConvertProperties(objectClass, handle, properties, {}, text);
}

QString CZtConverterKVAPIObject::ConvertClassProperties(const OdRxClass* objectClass, const PropertyPass& pass)
{
    static const std::unordered_map<const OdRxClass*, PropertyBranch> branches = {
        {OdDbLine::desc(), &CZtConverterKVAPIObject::ConvertLine},
        {OdDbCircle::desc(), &CZtConverterKVAPIObject::ConvertCircle},
        {OdDbPoint::desc(), &CZtConverterKVAPIObject::ConvertPoint},
        {OdDbRay::desc(), &CZtConverterKVAPIObject::ConvertRay},
        {OdDbArc::desc(), &CZtConverterKVAPIObject::ConvertArc},
        {OdDbXline::desc(), &CZtConverterKVAPIObject::ConvertInfiniteLine},
        {OdDbEllipse::desc(), &CZtConverterKVAPIObject::ConvertEllipse},
        {OdDbPolyline::desc(), &CZtConverterKVAPIObject::ConvertPolyLine},
        {OdDb3dPolyline::desc(), &CZtConverterKVAPIObject::ConvertPolyLine3D},
        {OdDbMline::desc(), &CZtConverterKVAPIObject::ConvertRichLine},
        {OdDbSpline::desc(), &CZtConverterKVAPIObject::ConvertSpline},
        {OdDbSolid::desc(), &CZtConverterKVAPIObject::ConvertSolid},
        {OdDbTrace::desc(), &CZtConverterKVAPIObject::ConvertTrace},
        {OdDbFace::desc(), &CZtConverterKVAPIObject::ConvertFace},
        {OdDbPolygonMesh::desc(), &CZtConverterKVAPIObject::ConvertPolygonMesh},
        {OdDbPolyFaceMesh::desc(), &CZtConverterKVAPIObject::ConvertPolyFaceMesh},
        {OdDbText::desc(), &CZtConverterKVAPIObject::ConvertSimpleNote},
        {OdDbMText::desc(), &CZtConverterKVAPIObject::ConvertNote},
        {OdDbFcf::desc(), &CZtConverterKVAPIObject::ConvertTolerance},
        {OdDbAttributeDefinition::desc(), &CZtConverterKVAPIObject::ConvertAttributeDefinition},
        {OdDbTextStyleTableRecord::desc(), &CZtConverterKVAPIObject::ConvertTextStyle},
        {OdDbLayerTableRecord::desc(), &CZtConverterKVAPIObject::ConvertLayer},
        {OdDbMlineStyle::desc(), &CZtConverterKVAPIObject::ConvertRichLineStyle},
        {OdDbBlockTableRecord::desc(), &CZtConverterKVAPIObject::ConvertBlockDefinition},
        {OdDbBlockReference::desc(), &CZtConverterKVAPIObject::ConvertBlockInstance},
        {OdDbRasterImage::desc(), &CZtConverterKVAPIObject::ConvertReferenceImage},
        {OdDbHatch::desc(), &CZtConverterKVAPIObject::ConvertHatch},
        {OdDbShape::desc(), &CZtConverterKVAPIObject::ConvertShape},
        {OdDbOle2Frame::desc(), &CZtConverterKVAPIObject::ConvertEmbeddedObject},
        {OdDbGroup::desc(), &CZtConverterKVAPIObject::ConvertGroup},
        {OdDbViewport::desc(), &CZtConverterKVAPIObject::ConvertViewport},
        {OdDbViewportTableRecord::desc(), &CZtConverterKVAPIObject::ConvertViewTile},
        {OdDbLayout::desc(), &CZtConverterKVAPIObject::ConvertLayout},
        {OdDbLeader::desc(), &CZtConverterKVAPIObject::ConvertLeader},
        {OdDbAlignedDimension::desc(), &CZtConverterKVAPIObject::ConvertAlignedDimensionProperties},
        {OdDbRotatedDimension::desc(), &CZtConverterKVAPIObject::ConvertRotatedDimensionProperties},
        {OdDb2LineAngularDimension::desc(), &CZtConverterKVAPIObject::ConvertAngularDimensionProperties},
        {OdDb3PointAngularDimension::desc(), &CZtConverterKVAPIObject::ConvertAngularDimensionProperties},
        {OdDbArcDimension::desc(), &CZtConverterKVAPIObject::ConvertArcDimensionProperties},
        {OdDbOrdinateDimension::desc(), &CZtConverterKVAPIObject::ConvertOrdinateDimensionProperties},
        {OdDbDiametricDimension::desc(), &CZtConverterKVAPIObject::ConvertDiametricDimensionProperties},
        {OdDbRadialDimension::desc(), &CZtConverterKVAPIObject::ConvertRadialDimensionProperties},
        {OdDbRadialDimensionLarge::desc(), &CZtConverterKVAPIObject::ConvertJoggedDimensionProperties},
        {OdDbDimStyleTableRecord::desc(), &CZtConverterKVAPIObject::ConvertDimensionStyle},
        {OdDbTable::desc(), &CZtConverterKVAPIObject::ConvertTable},
        {OdDbTableStyle::desc(), &CZtConverterKVAPIObject::ConvertTableStyle},
    };
    // A dimension just made has all from its style.
    if (pass.created && IsDimensionClass(objectClass))
    {
        return {};
    }
    const auto branch = branches.find(objectClass);
    return branch != branches.end() ? (this->*branch->second)(pass) : QString();
}

QString CZtConverterKVAPIObject::ConvertErased(const OdRxClass* objectClass, const PropertyPass& pass)
{
    const CZtVariant erased = pass.properties.TakeProperty("Erased");
    if (pass.created || erased.IsNull())
    {
        return {};
    }
    // A dimension is erased as the general one that it is.
    QString variable = pass.variable;
    QString head = IsDimensionClass(objectClass) ? OpenGeneralDimension(pass.variable, variable) : QString();
    // An object that comes back is not replayed.
    if (!IsWord(words_, erased, "YES", Qt::CaseInsensitive))
    {
        return head;
    }
    // Views and layers are removed from their tables.
    if (objectClass == OdDbViewTableRecord::desc())
    {
        const auto view = Opened<OdDbViewTableRecord>(pass.handle);
        return view ? WriteRemoveNamedView(view->getName(), view->isPaperspaceView()) : QString();
    }
    if (objectClass == OdDbLayerTableRecord::desc())
    {
        return WriteRemoveLayer(pass.variable);
    }
    return head + WriteSetBoolProperty(variable, QStringLiteral("Erased"), true);
}

ResultCode CZtConverterKVAPIObject::ConvertProperties(const OdRxClass* objectClass, OdDbHandle handle,
                                                      PropertyList& properties, const QString& newVariable,
                                                      QString& text)
{
    text.clear();
    const bool created = !newVariable.isEmpty();
    const OdDbObjectId ownerLeader = !created && objectClass == OdDbMText::desc()
                                         ? CZtConverterKVAPIImpl::FindAttachedLeader(handle)
                                         : OdDbObjectId();
    const bool isLeaderNote = !ownerLeader.isNull();

    QString variable = newVariable;
    QString head;
    if (created)
    {
        // Its variable is known, and so is the object.
    }
    else if (isLeaderNote)
    {
        // The note hangs on its leader, whose variable leads to it; the look-ups themselves aren't written.
        QString leader;
        static_cast<void>(GetObjectByHandle(handle, objectClass, variable));
        static_cast<void>(GetObjectByHandle(ownerLeader.getHandle(), OdDbLeader::desc(), leader));
        head = WriteGetNoteAnnotation(leader, variable);
    }
    else if (Converter().FindKnownObject(handle) != nullptr)
    {
        static_cast<void>(GetObjectByHandle(handle, objectClass, variable));
    }
    else if (objectClass == OdDbBlockTableRecord::desc() && properties.Holds("Objects"))
    {
        static_cast<void>(GetObjectByHandle(handle, objectClass, variable));
        head = WriteDeclareBlockDefinition(variable);
    }
    else if (objectClass != OdDbLayout::desc())
    {
        // A change to an object that the macro didn't create is dropped.
        return ResultNormal;
    }

    const std::int32_t levelOutside = Counters().IndentLevel;
    QString blockBegin = Converter().WriteBlockBegin();
    const PropertyPass pass{properties, created, variable, handle};
    bool noBlock = false;
    QString common;
    if (objectClass->isDerivedFrom(OdDbEntity::desc()))
    {
        // What all entities have, a dimension has as the general one that it is. Without a block the way to that one
        // is lost; the format's.
        QString general = variable;
        const QString generalHead = IsDimensionClass(objectClass) ? OpenGeneralDimension(variable, general) : QString();
        common = ConvertEntityProperties({properties, created, general, handle}, noBlock);
        if (!common.isEmpty())
        {
            blockBegin += generalHead;
        }
    }
    QString own = ConvertClassProperties(objectClass, pass);
    own += ConvertErased(objectClass, pass);

    if (common.isEmpty() && own.isEmpty())
    {
        Counters().IndentLevel = levelOutside;
        // Without changes the note's declaration would stand alone.
        text = isLeaderNote ? QString() : head;
        return ResultNormal;
    }
    text = head;
    if (noBlock)
    {
        text += common;
        text += own;
        return ResultNormal;
    }
    text += blockBegin;
    text += common;
    text += own;
    text += Converter().WriteBlockEnd();
    return ResultNormal;
}
