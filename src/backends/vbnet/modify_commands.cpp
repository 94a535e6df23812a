// VB.NET texts of the modify commands; the logic stands in core/modify_commands.cpp.
#include "backends/vbnet/converter.h"

using kv::General;

// The arrays of entities with their types; an unknown entity gives empty arguments.
QString CZtConverterKVAPIVbNet::TypedEntities(const EntityArray& entities) const
{
    const std::int32_t number = Counters().LocalNameSequence;
    QString text = Statement("%1Dim kvEntities%3 As DispatchWrapper()%2"
                             "%1Dim types%3 As Integer() = New Integer( %4 ) {}%2"
                             "%1kvEntities%3 = New DispatchWrapper( %4 ) {}%2%2",
                             number, entities.size() - 1);
    for (int i = 0; i < entities.size(); ++i)
    {
        text += Statement("%1types%3( %4 ) = CInt( Morvane.kvObjectType_e.%5 )%2"
                          "%1kvEntities%3( %4 ) = New DispatchWrapper( %6 )%2",
                          number, i, entities.types.at(i), entities.names.at(i));
    }
    text += kv::LineEnd();
    return text;
}

QString CZtConverterKVAPIVbNet::WriteMirrorEntities(const EntityArray& entities, const OdGePoint3d& firstPoint,
                                                    const OdGePoint3d& secondPoint, bool flag)
{
    // The blanks inside the parentheses, here only, are the format's.
    QString text = TypedEntities(entities);
    text += Statement("%1kvSketchManager.MirrorEntities( %3, %4, %5, %6, %7, %8, %9, types%10, kvEntities%10 )%2",
                      firstPoint, secondPoint, FlagWord(flag), Counters().LocalNameSequence);
    return text;
}

QString CZtConverterKVAPIVbNet::WriteStretchEntities(const EntityArray& entities, const OdGePoint3d& startCorner,
                                                     const OdGePoint3d& endCorner, const OdGeVector3d& displacement)
{
    const std::int32_t number = Counters().LocalNameSequence;
    QString text = Statement("%1Dim kvEntities%3 As DispatchWrapper()%2"
                             "%1Dim crossingBoxStartCorner%3(2) As Double%2"
                             "%1Dim crossingBoxEndCorner%3(2) As Double%2"
                             "%1kvEntities%3 = New DispatchWrapper( %4 ) {}%2%2",
                             number, entities.size() - 1);
    text += EntityElements("kvEntities", number, entities.names);
    text += PointElements("crossingBoxStartCorner", number, startCorner);
    text += PointElements("crossingBoxEndCorner", number, endCorner);
    text += kv::LineEnd();
    text += Statement("%1kvSketchManager.StretchEntities(%3, %4, %5, kvEntities%6, crossingBoxStartCorner%6, "
                      "crossingBoxEndCorner%6)%2",
                      displacement, number);
    return text;
}

QString CZtConverterKVAPIVbNet::WriteCopyEntities(const EntityArray& entities, const OdGeVector3d& displacement,
                                                  bool first)
{
    QString text = first ? TypedEntities(entities) : QString();
    text += Statement("%1kvSketchManager.CopyEntities(%3, %4, %5, types%6, kvEntities%6)%2", displacement,
                      Counters().LocalNameSequence);
    return text;
}

QString CZtConverterKVAPIVbNet::WriteMoveEntities(const EntityArray& entities, const OdGeVector3d& displacement,
                                                  bool first)
{
    const std::int32_t number = Counters().LocalNameSequence;
    QString text;
    if (first)
    {
        text += Statement("%1Dim kvEntities%3 As DispatchWrapper()%2"
                          "%1kvEntities%3 = New DispatchWrapper( %4 ) {}%2%2",
                          number, entities.size() - 1);
        text += EntityElements("kvEntities", number, entities.names);
        text += kv::LineEnd();
    }
    text += Statement("%1kvSketchManager.MoveEntities(%3, %4, %5, kvEntities%6)%2", displacement, number);
    return text;
}

QString CZtConverterKVAPIVbNet::WriteRotateEntities(const EntityArray& entities, const OdGePoint3d& basePoint,
                                                    double angle)
{
    QString text = TypedEntities(entities);
    text += Statement("%1kvSketchManager.RotateEntities(%3, %4, %5, types%6, kvEntities%6)%2",
                      OdGePoint2d{basePoint.x, basePoint.y}, General{angle}, Counters().LocalNameSequence);
    return text;
}

QString CZtConverterKVAPIVbNet::WriteScaleEntities(const EntityArray& entities, const OdGePoint3d& basePoint,
                                                   double factor)
{
    // The markers are filled in the order x, y, factor, number, z.
    QString text = TypedEntities(entities);
    text += Statement("%1kvSketchManager.ScaleEntities(%3, %4, %7, %5, types%6, kvEntities%6)%2", General{basePoint.x},
                      General{basePoint.y}, General{factor}, Counters().LocalNameSequence, General{basePoint.z});
    return text;
}
