// The logic of drawing objects: how objects added and changed become creation calls and property settings. What all
// languages share; a language overrides the Write... operations and nothing else.
#pragma once

#include "core/converter_impl.h"
#include "core/enum_kind.h"
#include "host/db/color.h"
#include "host/db/object.h"
#include "host/ge/point2d.h"
#include "host/kernel/services.h"
#include "objects/attribute_flags.h"
#include "objects/axis.h"
#include "objects/created_objects.h"
#include "objects/custom_data.h"
#include "objects/dimension_settings.h"
#include "objects/display_words.h"
#include "objects/hatch_data.h"
#include "objects/hyperlink.h"
#include "objects/measured_curve.h"
#include "objects/property_list.h"

#include <array>
#include <functional>
#include <initializer_list>
#include <map>
#include <optional>

class OdDbDimension;
class OdDbFcf;
class OdDbMText;
class OdDbPolyFaceMesh;

class CZtConverterKVAPIObject
{
public:
    virtual ~CZtConverterKVAPIObject() = default;
    CZtConverterKVAPIObject(const CZtConverterKVAPIObject&) = delete;
    CZtConverterKVAPIObject& operator=(const CZtConverterKVAPIObject&) = delete;

    // The text of an event, appended to what is there (of a changed property: replacing it). Give 5100, or -5001 when
    // the event names no class. An object or a change that has no translation gives no text and 5100.
    [[nodiscard]] ResultCode ConvertObjectAdded(const CZtObjectAdded& event, QString& text);
    [[nodiscard]] ResultCode ConvertObjectModified(const CZtObjectModified& event, QString& text);
    [[nodiscard]] ResultCode ConvertPropertyChanged(CZtPropertyChanged& event, QString& text);

    // True for exactly the nine classes of dimensions.
    [[nodiscard]] static bool IsDimensionClass(const OdRxClass* objectClass);

    // The variable of an object. For one that the macro doesn't know it takes a new number, and the text that comes
    // back fetches the object by its handle; it is empty for a known one. A class that the API doesn't have gives an
    // empty variable and no text.
    [[nodiscard]] QString GetObjectByHandle(OdDbHandle handle, const OdRxClass* objectClass, QString& variable);

    // A hatch by entities of the drawing: each becomes a helper of the macro, which is erased behind the hatch on
    // demand; an entity that the API can't insert is named when the macro has it and left out otherwise.
    [[nodiscard]] QString HatchByEntities(const QString& target, const OdArray<OdDbObjectId>& ids,
                                          const QString& pattern, double scale, double angle, bool erase);

    // Hyperlink of a block definition.
    [[nodiscard]] QString SetHyperLink(const QString& variable, const QString& address, const QString& description);

    // The text operations.
#define OPERATION(result, name, parameters) [[nodiscard]] virtual result name parameters = 0;
#include "objects/object_operations.def"
#undef OPERATION

protected:
    // The converter owns this object and outlives it; without one every operation throws OdError 20.
    explicit CZtConverterKVAPIObject(CZtConverterKVAPIImpl* converter) : converter_(converter) {}

    [[nodiscard]] CZtConverterKVAPIImpl& Converter() const;
    [[nodiscard]] ConversionCounters& Counters() const { return Converter().Counters(); }

private:
    // The properties of a creation: those that the creation call carries are taken with the consumed list.
    struct Creation
    {
        PropertyList& properties;
        ConsumedProperties& consumed;
        OdDbHandle handle;
        const QString& variable;
    };

    // The properties of a pass over an object.
    struct PropertyPass
    {
        PropertyList& properties;
        bool created = false; // the object was made just now, by a call that carries most of its properties
        const QString& variable;
        OdDbHandle handle;
    };

    using CreationBranch = QString (CZtConverterKVAPIObject::*)(const Creation&);
    using PropertyBranch = QString (CZtConverterKVAPIObject::*)(const PropertyPass&);

    // The passes.
    [[nodiscard]] ResultCode ConvertCreation(const OdRxClass* objectClass, OdDbHandle handle, PropertyList& properties,
                                             PropertyList& remaining, QString& text);
    [[nodiscard]] ResultCode ConvertModification(const OdRxClass* objectClass, OdDbHandle handle,
                                                 PropertyList& properties, QString& text);
    // The variable of an object that was made just now, empty for a change.
    [[nodiscard]] ResultCode ConvertProperties(const OdRxClass* objectClass, OdDbHandle handle,
                                               PropertyList& properties, const QString& newVariable, QString& text);
    [[nodiscard]] QString ConvertEntityProperties(const PropertyPass& pass, bool& noBlock);
    [[nodiscard]] QString ConvertErased(const OdRxClass* objectClass, const PropertyPass& pass);
    [[nodiscard]] QString ConvertClassProperties(const OdRxClass* objectClass, const PropertyPass& pass);

    // Names.
    [[nodiscard]] static bool GetObjectTypeName(OdDbHandle handle, const OdRxClass* objectClass, QString& typeName);
    [[nodiscard]] PropertyList PropertiesOf(const CZtPropertyList& elements) const;

    // The object of a handle in the active drawing; null when it is gone or of another class.
    template <class T>
    [[nodiscard]] static OdSmartPtr<T> Opened(OdDbHandle handle)
    {
        CZtDocument* document = ACTIVE_DOCUMENT();
        const OdDbObjectPtr object =
            document != nullptr ? document->GetZtDatabase()->getOdDbObjectId(handle).openObject() : OdDbObjectPtr();
        return object && object->isKindOf(T::desc()) ? OdSmartPtr<T>::cast(object) : OdSmartPtr<T>();
    }

    // The texts of referenced objects; empty when the object is gone.
    [[nodiscard]] QString SetLayer(const QString& variable, const OdDbObjectId& layer);
    [[nodiscard]] QString SetLineStyle(const QString& variable, const QString& word, const OdDbObjectId& lineStyle);

    // The insertion of an object as the drawing holds it; empty for a class that the API doesn't insert.
    [[nodiscard]] QString InsertStored(const OdDbObject& object, const QString& variable);
    [[nodiscard]] QString InsertStoredCurve(const OdDbObject& object, const QString& variable);
    [[nodiscard]] QString InsertStoredVertices(const OdDbObject& object, const QString& variable);
    [[nodiscard]] QString InsertStoredText(const OdDbObject& object, const QString& variable);

    // The stem of the locals that stand for objects of a class; empty for a class that the API doesn't insert.
    [[nodiscard]] static QString StemOf(const OdRxClass* objectClass);

    // All three coordinates of a point, and a setting by a constant that the logic holds.
    [[nodiscard]] QString SetPoint(const QString& variable, const char* getter, const char* setter,
                                   const OdGePoint3d& point);
    [[nodiscard]] QString SetConstant(const QString& variable, const char* word, const char* constant);

    // Changed properties: each is taken from the list and written only when the object isn't new. The names are those
    // of the journal, the words those of the API.
    using CoordinateNames = std::array<const char*, 3>;
    using PointWriter = QString (CZtConverterKVAPIObject::*)(const QString&, Axis, double);
    [[nodiscard]] static std::optional<double> TakeChange(const PropertyPass& pass, const char* name);
    [[nodiscard]] QString ChangeDouble(const PropertyPass& pass, const char* name, const char* word);
    [[nodiscard]] QString ChangePoint(const PropertyPass& pass, const CoordinateNames& names, PointWriter write);
    [[nodiscard]] QString ChangeCoordinates(const PropertyPass& pass, const CoordinateNames& names, const char* getter,
                                            const char* setter);

    // A change of one coordinate of a vertex, whose 0-based index is the tag; nothing without an index.
    struct VertexChange
    {
        Axis axis;
        double value;
        std::int32_t index;
    };
    [[nodiscard]] static std::optional<VertexChange> TakeVertex(const PropertyPass& pass, const char* name, Axis axis);
    [[nodiscard]] QString ChangeVertices(const PropertyPass& pass, const CoordinateNames& names, const char* getter,
                                         const char* setter);
    [[nodiscard]] QString ChangeCorners(const PropertyPass& pass, std::int32_t lastIndex);
    [[nodiscard]] QString ChangeSwitch(const PropertyPass& pass, const char* name, const char* word);
    [[nodiscard]] QString ChangeWord(const PropertyPass& pass, const char* name, const char* word, const char* yes);
    [[nodiscard]] QString ChangeEnum(const PropertyPass& pass, const char* name, kv::EnumKind kind, const char* word);
    [[nodiscard]] QString ChangeText(const PropertyPass& pass, const char* name, const char* word);

    // Curves and points.
    [[nodiscard]] QString CreateLine(const Creation& creation);
    [[nodiscard]] QString CreateCircle(const Creation& creation);
    [[nodiscard]] QString CreatePoint(const Creation& creation);
    [[nodiscard]] QString CreateRay(const Creation& creation);
    [[nodiscard]] QString CreateArc(const Creation& creation);
    [[nodiscard]] QString CreateInfiniteLine(const Creation& creation);
    [[nodiscard]] QString CreateEllipse(const Creation& creation);
    [[nodiscard]] QString InsertEllipse(const QString& variable, const OdGePoint3d& center, const OdGePoint3d& axis,
                                        double minorRadius, double startAngle, double endAngle);
    [[nodiscard]] QString ConvertLine(const PropertyPass& pass);
    [[nodiscard]] QString ConvertCircle(const PropertyPass& pass);
    [[nodiscard]] QString ConvertPoint(const PropertyPass& pass);
    [[nodiscard]] QString ConvertRay(const PropertyPass& pass);
    [[nodiscard]] QString ConvertArc(const PropertyPass& pass);
    [[nodiscard]] QString ConvertInfiniteLine(const PropertyPass& pass);
    [[nodiscard]] QString ConvertEllipse(const PropertyPass& pass);

    // Polylines, splines, leaders, meshes and filled shapes.
    [[nodiscard]] static OdArray<OdGePoint2d> Flattened(const OdArray<OdGePoint3d>& points);
    [[nodiscard]] QString CreatePolyline(const Creation& creation);
    [[nodiscard]] QString CreatePolyline3D(const Creation& creation);
    [[nodiscard]] QString CreateRichLine(const Creation& creation);
    [[nodiscard]] QString CreateSpline(const Creation& creation);
    [[nodiscard]] QString CreateLeader(const Creation& creation);
    [[nodiscard]] QString CreateSolid(const Creation& creation);
    [[nodiscard]] QString CreateTrace(const Creation& creation);
    [[nodiscard]] QString CreateFace(const Creation& creation);
    [[nodiscard]] QString CreatePolygonMesh(const Creation& creation);
    [[nodiscard]] QString CreatePolyFaceMesh(const Creation& creation);
    [[nodiscard]] static QString RichLineJustification(std::int32_t index);
    [[nodiscard]] QString InsertSpline(const QString& variable, const OdArray<OdGePoint3d>& points, bool closed,
                                       const OdGePoint3d& startTangent, const OdGePoint3d& endTangent,
                                       double tolerance);
    [[nodiscard]] QString InsertTrace(const QString& variable, const OdArray<OdGePoint3d>& points);
    [[nodiscard]] QString InsertPolygonMesh(const QString& variable, const OdArray<OdGePoint3d>& points, std::int32_t m,
                                            std::int32_t n, bool closedM, bool closedN);
    [[nodiscard]] QString InsertPolyFaceMesh(const QString& variable, const OdArray<OdGePoint3d>& points,
                                             const OdDbPolyFaceMesh& mesh);
    [[nodiscard]] QString ChangeSegment(const PropertyPass& pass, const char* name, const char* setter);
    [[nodiscard]] QString ConvertPolyLine(const PropertyPass& pass);
    [[nodiscard]] QString ConvertPolyLine3D(const PropertyPass& pass);
    [[nodiscard]] QString ConvertRichLine(const PropertyPass& pass);
    [[nodiscard]] QString ConvertSpline(const PropertyPass& pass);
    [[nodiscard]] QString ConvertSolid(const PropertyPass& pass);
    [[nodiscard]] QString ConvertTrace(const PropertyPass& pass);
    [[nodiscard]] QString ConvertFace(const PropertyPass& pass);
    [[nodiscard]] QString ConvertPolygonMesh(const PropertyPass& pass);
    [[nodiscard]] QString ConvertPolyFaceMesh(const PropertyPass& pass);

    // Texts, notes, attribute definitions, tolerances, text styles and the annotation of a leader.
    [[nodiscard]] QString CreateSimpleNote(const Creation& creation);
    [[nodiscard]] QString CreateNote(const Creation& creation);
    [[nodiscard]] QString CreateTolerance(const Creation& creation);
    [[nodiscard]] QString CreateAttributeDefinition(const Creation& creation);
    [[nodiscard]] QString CreateTextStyle(const Creation& creation);
    [[nodiscard]] QString SetNoteDirection(const QString& variable, const CZtVariant& direction);
    [[nodiscard]] QString InsertStoredNote(const OdDbMText& note, const QString& variable);
    [[nodiscard]] QString LeaderAnnotation(const QString& leader, const OdDbObjectId& annotation);
    [[nodiscard]] QString LeaderNote(const QString& leader, const OdDbMText& note);
    [[nodiscard]] QString SetLeaderAnnotation(const QString& variable, const OdDbFcf& tolerance);
    [[nodiscard]] QString ConvertSimpleNote(const PropertyPass& pass);
    [[nodiscard]] QString ConvertNote(const PropertyPass& pass);
    [[nodiscard]] QString ConvertTolerance(const PropertyPass& pass);
    [[nodiscard]] QString ConvertAttributeDefinition(const PropertyPass& pass);
    [[nodiscard]] QString ConvertTextStyle(const PropertyPass& pass);

    // The name that a property gives, or else the record's own.
    [[nodiscard]] static QString TakeName(const Creation& creation, const char* name, const QString& recordName);
    template <class Record>
    [[nodiscard]] static QString NameOf(const Creation& creation, const char* name)
    {
        const auto record = Opened<Record>(creation.handle);
        return TakeName(creation, name, record ? record->getName() : OdString());
    }

    // Layers, line styles and rich line styles.
    [[nodiscard]] QString CreateLayer(const Creation& creation);
    [[nodiscard]] QString CreateLineStyle(const Creation& creation);
    [[nodiscard]] QString CreateRichLineStyle(const Creation& creation);
    [[nodiscard]] QString ConvertLayer(const PropertyPass& whole);
    [[nodiscard]] QString ConvertLayerInViewport(PropertyList& properties, const QString& variable);
    [[nodiscard]] QString ConvertRichLineStyle(const PropertyPass& pass);

    // Blocks and their instances, pictures, shapes, embedded objects and groups.
    [[nodiscard]] static OdArray<OdDbObjectId> ObjectsOf(const CZtVariant& list);
    [[nodiscard]] static QString FirstText(const OdArray<OdResBufPtr>& data);
    [[nodiscard]] static QString LastText(const OdArray<OdResBufPtr>& data);
    [[nodiscard]] static CustomData CustomDataOf(const OdArray<OdResBufPtr>& data);
    [[nodiscard]] QString BlockDefinition(const QString& variable, const QString& name, const QString& description,
                                          const OdGePoint3d& basePoint, const OdArray<OdDbObjectId>& ids);
    [[nodiscard]] QString BlockContents(const QString& definition, const OdArray<OdDbObjectId>& ids);
    [[nodiscard]] QString MemberName(const OdDbObjectId& id, QStringList& names);
    [[nodiscard]] QString CreateBlockDefinition(const Creation& creation);
    [[nodiscard]] QString CreateBlockInstance(const Creation& creation);
    [[nodiscard]] QString CreatePicture(const Creation& creation);
    [[nodiscard]] QString CreateShape(const Creation& creation);
    [[nodiscard]] QString CreateGroup(const Creation& creation);
    [[nodiscard]] QString ConvertBlockDefinition(const PropertyPass& pass);
    [[nodiscard]] QString ConvertBlockInstance(const PropertyPass& pass);
    [[nodiscard]] QString ConvertReferenceImage(const PropertyPass& pass);
    [[nodiscard]] QString ConvertShape(const PropertyPass& pass);
    [[nodiscard]] QString ConvertEmbeddedObject(const PropertyPass& pass);
    [[nodiscard]] QString ConvertGroup(const PropertyPass& pass);

    // Hatches.
    [[nodiscard]] QString ConvertHatch(const PropertyPass& pass);
    [[nodiscard]] QString ConvertRegionAndOrigin(PropertyList& properties, const QString& pattern);

    // Viewports, tiles and layouts.
    [[nodiscard]] QString CreateViewport(const Creation& creation);
    [[nodiscard]] QString ConvertViewport(const PropertyPass& pass);
    [[nodiscard]] QString ConvertViewTile(const PropertyPass& pass);
    [[nodiscard]] QString ConvertLayout(const PropertyPass& pass);

    // Dimensions. A curve or line that the macro doesn't have is made for the insertion: the head makes a line, the
    // tail erases it.
    [[nodiscard]] static OdGePoint3d TakePoint(const Creation& creation, const char* name);
    [[nodiscard]] static QString TakeTextOverride(const Creation& creation);
    [[nodiscard]] std::optional<MeasuredCurve> MeasuredBy(const Creation& creation) const;
    [[nodiscard]] QString MeasuredLine(const OdDbObjectId& line, const QString& temporary, const OdGePoint3d& start,
                                       const OdGePoint3d& end, QString& head, QString& tail);
    [[nodiscard]] QString CreateAlignedDimension(const Creation& creation);
    [[nodiscard]] QString CreateRotatedDimension(const Creation& creation);
    [[nodiscard]] QString CreateTwoLineDimension(const Creation& creation);
    [[nodiscard]] QString CreateThreePointDimension(const Creation& creation);
    [[nodiscard]] QString CreateArcDimension(const Creation& creation);
    [[nodiscard]] QString CreateOrdinateDimension(const Creation& creation);
    [[nodiscard]] QString CreateDiametricDimension(const Creation& creation);
    [[nodiscard]] QString CreateRadialDimension(const Creation& creation);
    [[nodiscard]] QString CreateJoggedDimension(const Creation& creation);

    // Settings of dimensions and dimension styles. OpenOptions gives the way from the object to an option object and
    // the local that holds it; each setting goes its own way. A setting that needs the dimension throws
    // OdError_NotThatKindOfClass when it is gone.
    using SettingWriter = std::function<QString(const QString& options, const CZtVariant& value)>;
    [[nodiscard]] QString NextLocal(const char* stem);
    [[nodiscard]] QString OpenGeneralDimension(const QString& dimension, QString& general);
    [[nodiscard]] QString OpenOptions(const QString& root, DimensionRoot kind, const DimensionOptions& options,
                                      QString& local);
    [[nodiscard]] bool IsSet(const CZtVariant& value, DimensionRoot kind) const;
    [[nodiscard]] QString WriteSetting(const QString& variable, DimensionRoot kind, const DimensionSetting& setting,
                                       const CZtVariant& value);
    [[nodiscard]] QString ChangeSettings(const PropertyPass& pass, DimensionRoot kind, const DimensionOptions& options,
                                         std::initializer_list<DimensionSetting> settings);
    [[nodiscard]] QString ChangeSetting(const PropertyPass& pass, DimensionRoot kind, const DimensionOptions& options,
                                        const char* label, const SettingWriter& write);
    [[nodiscard]] static OdSmartPtr<OdDbDimension> OpenedDimension(const PropertyPass& pass);
    [[nodiscard]] QString ChangeArrows(const PropertyPass& pass, DimensionRoot kind);
    [[nodiscard]] QString ChangeFit(const PropertyPass& pass);
    [[nodiscard]] QString ChangeLineColor(const PropertyPass& pass, DimensionRoot kind);
    [[nodiscard]] QString ChangeLineLook(const PropertyPass& pass, DimensionRoot kind);
    [[nodiscard]] QString ChangeLines(const PropertyPass& pass);
    [[nodiscard]] QString ChangeDimensionText(const PropertyPass& pass);
    [[nodiscard]] QString ChangeToleranceSettings(const PropertyPass& pass);
    [[nodiscard]] QString ChangePrimaryUnits(const PropertyPass& pass, bool isAngular);
    [[nodiscard]] QString ChangeAlternateUnits(const PropertyPass& pass);
    [[nodiscard]] QString ConvertDimension(const PropertyPass& pass, bool isAngular);
    [[nodiscard]] QString ConvertAlignedDimensionProperties(const PropertyPass& pass);
    [[nodiscard]] QString ConvertAngularDimensionProperties(const PropertyPass& pass);
    [[nodiscard]] QString ConvertArcDimensionProperties(const PropertyPass& pass);
    [[nodiscard]] QString ConvertDiametricDimensionProperties(const PropertyPass& pass);
    [[nodiscard]] QString ConvertRadialDimensionProperties(const PropertyPass& pass);
    [[nodiscard]] QString ConvertJoggedDimensionProperties(const PropertyPass& pass);
    [[nodiscard]] QString ConvertOrdinateDimensionProperties(const PropertyPass& pass);
    [[nodiscard]] QString ConvertRotatedDimensionProperties(const PropertyPass& pass);
    [[nodiscard]] QString ConvertLeader(const PropertyPass& pass);

    // Dimension styles.
    [[nodiscard]] QString CreateDimensionStyle(const Creation& creation);
    [[nodiscard]] QString StyleArrows(const PropertyPass& pass);
    [[nodiscard]] QString StyleDualUnits(const PropertyPass& pass);
    [[nodiscard]] QString StyleFit(const PropertyPass& pass);
    [[nodiscard]] QString StyleLinearUnits(const PropertyPass& pass);
    [[nodiscard]] QString StyleLines(const PropertyPass& pass);
    [[nodiscard]] QString StyleCenterMark(const PropertyPass& pass);
    [[nodiscard]] QString StyleText(const PropertyPass& pass);
    [[nodiscard]] QString StyleTolerance(const PropertyPass& pass);
    [[nodiscard]] QString ConvertDimensionStyle(const PropertyPass& pass);

    // Tables, each with the counts and the sizes that the macro's table has at this point of the replay, and table
    // styles. EachOf writes the values of a list, counted from 1 up to the limit.
    struct TableState
    {
        std::int32_t rows = 0;
        std::int32_t columns = 0;
        double height = 0.0;
        double width = 0.0;
    };
    [[nodiscard]] QString CreateTable(const Creation& creation);
    [[nodiscard]] QString SetTableText(const QString& variable, const PropertyList::Numbered& cell);
    [[nodiscard]] QString AddTableLines(const PropertyPass& pass, bool areRows, std::int32_t first);
    [[nodiscard]] QString ChangeTableCount(const PropertyPass& pass, const char* name, bool areRows,
                                           std::int32_t& count);
    [[nodiscard]] QString ChangeTableSize(const PropertyPass& pass, const char* name, bool areSingleSizesHere,
                                          bool areRows, double& size);
    [[nodiscard]] QString ConvertTable(const PropertyPass& pass);
    [[nodiscard]] static QString FirstTextOf(const CZtVariant& value);
    [[nodiscard]] QString SetTableDirection(const QString& variable, const QString& direction, bool isStyle);
    [[nodiscard]] QString CreateTableStyle(const Creation& creation);
    [[nodiscard]] static QString EachOf(const CZtVariant& list, int limit,
                                        const std::function<QString(int, const CZtVariant&)>& write);
    [[nodiscard]] QString ConvertTableStyle(const PropertyPass& pass);

    CZtConverterKVAPIImpl* converter_;
    CreatedObjects createdObjects_;
    std::map<QString, TableState> tables_; // by the variable of the table
    DisplayWords words_;
};
