// C++ COM texts of the modify commands; the logic stands in core/modify_commands.cpp.
#include "backends/cppcom/converter.h"
#include "backends/cppcom/safe_array.h"

using kv::General;

// The arrays of entities with their types; an unknown entity gives empty elements.
QString CZtConverterKVAPICPPCOM::TypedEntities(const EntityArray& entities)
{
    const std::int32_t number = Counters().LocalNameSequence;
    const SafeArrayText names(SafeArrayText::Kind::Entities, "kvEntities", number);
    const SafeArrayText types(SafeArrayText::Kind::Integers, "types", number);
    QString text = names.Declare(CurrentIndent(), entities.size());
    text += types.Declare(CurrentIndent(), entities.size());
    text += types.Block(CurrentIndent(), entities.types);
    text += names.Block(CurrentIndent(), entities.names);
    text += kv::LineEnd();
    return text;
}

QString CZtConverterKVAPICPPCOM::WriteMirrorEntities(const EntityArray& entities, const OdGePoint3d& firstPoint,
                                                     const OdGePoint3d& secondPoint, bool flag)
{
    QString text = TypedEntities(entities);
    text += Line("%1kvSketchManager->MirrorEntities(%2, %3, %4, %5, %6, %7, %8, types%9, kvEntities%9);\n", firstPoint,
                 secondPoint, FlagWord(flag), Counters().LocalNameSequence);
    return text;
}

QString CZtConverterKVAPICPPCOM::WriteStretchEntities(const EntityArray& entities, const OdGePoint3d& startCorner,
                                                      const OdGePoint3d& endCorner, const OdGeVector3d& displacement)
{
    const std::int32_t number = Counters().LocalNameSequence;
    const SafeArrayText names(SafeArrayText::Kind::Entities, "kvEntities", number);
    const SafeArrayText start(SafeArrayText::Kind::Doubles, "crossingBoxStartCorner", number);
    const SafeArrayText end(SafeArrayText::Kind::Doubles, "crossingBoxEndCorner", number);
    QString text = names.Declare(CurrentIndent(), entities.size());
    text += start.Declare(CurrentIndent(), 3);
    text += end.Declare(CurrentIndent(), 3);
    text += kv::LineEnd();
    text += names.Block(CurrentIndent(), entities.names);
    text += start.Block(CurrentIndent(), CoordinateTexts(startCorner, kv::GeneralText));
    text += end.Block(CurrentIndent(), CoordinateTexts(endCorner, kv::GeneralText));
    text += kv::LineEnd();
    text += Line("%1kvSketchManager->StretchEntities(%2, %3, %4, kvEntities%5, crossingBoxStartCorner%5, "
                 "crossingBoxEndCorner%5);\n",
                 displacement, number);
    return text;
}

QString CZtConverterKVAPICPPCOM::WriteCopyEntities(const EntityArray& entities, const OdGeVector3d& displacement,
                                                   bool first)
{
    QString text = first ? TypedEntities(entities) : QString();
    text += Line("%1kvSketchManager->CopyEntities(%2, %3, %4, types%5, kvEntities%5);\n", displacement,
                 Counters().LocalNameSequence);
    return text;
}

QString CZtConverterKVAPICPPCOM::WriteMoveEntities(const EntityArray& entities, const OdGeVector3d& displacement,
                                                   bool first)
{
    const std::int32_t number = Counters().LocalNameSequence;
    QString text;
    if (first)
    {
        const SafeArrayText names(SafeArrayText::Kind::Entities, "kvEntities", number);
        text += names.Declare(CurrentIndent(), entities.size());
        text += names.Block(CurrentIndent(), entities.names);
        text += kv::LineEnd();
    }
    text += Line("%1kvSketchManager->MoveEntities(%2, %3, %4, kvEntities%5);\n", displacement, number);
    return text;
}

QString CZtConverterKVAPICPPCOM::WriteRotateEntities(const EntityArray& entities, const OdGePoint3d& basePoint,
                                                     double angle)
{
    QString text = TypedEntities(entities);
    text += Line("%1kvSketchManager->RotateEntities(%2, %3, %4, types%5, kvEntities%5);\n", General{basePoint.x},
                 General{basePoint.y}, General{angle}, Counters().LocalNameSequence);
    return text;
}

QString CZtConverterKVAPICPPCOM::WriteScaleEntities(const EntityArray& entities, const OdGePoint3d& basePoint,
                                                    double factor)
{
    // The markers are filled in the order x, y, factor, number, z.
    QString text = TypedEntities(entities);
    text += Line("%1kvSketchManager->ScaleEntities(%2, %3, %6, %4, types%5, kvEntities%5);\n", General{basePoint.x},
                 General{basePoint.y}, General{factor}, Counters().LocalNameSequence, General{basePoint.z});
    return text;
}
