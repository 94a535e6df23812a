// C# texts of the modify commands; the logic stands in core/modify_commands.cpp.
#include "backends/csharp/converter.h"

using kv::General;

// The arrays of entities with their types; an unknown entity gives empty arguments.
QString CZtConverterKVAPICSharp::TypedEntities(const EntityArray& entities) const
{
    const std::int32_t number = Counters().LocalNameSequence;
    QString text = Line("%1DispatchWrapper[] kvEntities%2;\n", number);
    text += Line("%1int[] types%2 = new int[%3];\n", number, entities.size());
    text += Line("%1kvEntities%2 = new DispatchWrapper[%3];\n\n", number, entities.size());
    for (int i = 0; i < entities.size(); ++i)
    {
        text += Line("%1types%2[%3] = (int)kvObjectType_e.%4;\n", number, i, entities.types.at(i));
        text += Line("%1kvEntities%2[%3] = new DispatchWrapper(%4);\n", number, i, entities.names.at(i));
    }
    text += kv::LineEnd();
    return text;
}

QString CZtConverterKVAPICSharp::WriteMirrorEntities(const EntityArray& entities, const OdGePoint3d& firstPoint,
                                                     const OdGePoint3d& secondPoint, bool flag)
{
    QString text = TypedEntities(entities);
    text += Line("%1kvApp.GetActiveDocument().GetModel().GetSketchManager()"
                 ".MirrorEntities(%2, %3, %4, %5, %6, %7, %8, types%9, kvEntities%9);\n",
                 firstPoint, secondPoint, FlagWord(flag), Counters().LocalNameSequence);
    return text;
}

QString CZtConverterKVAPICSharp::WriteStretchEntities(const EntityArray& entities, const OdGePoint3d& startCorner,
                                                      const OdGePoint3d& endCorner, const OdGeVector3d& displacement)
{
    const std::int32_t number = Counters().LocalNameSequence;
    QString text = Line("%1DispatchWrapper[] kvEntities%2;\n"
                        "%1double[] crossingBoxStartCorner%2 = new double[3];\n"
                        "%1double[] crossingBoxEndCorner%2 = new double[3];\n\n",
                        number);
    text += Line("%1kvEntities%2 = new DispatchWrapper[%3];\n\n", number, entities.size());
    text += EntityElements("%1kvEntities%2[%3] = new DispatchWrapper(%4);\n", number, entities.names);
    text += Line("%1crossingBoxStartCorner%2[0] = %3;crossingBoxStartCorner%2[1] = %4;"
                 "crossingBoxStartCorner%2[2] = %5;\n",
                 number, startCorner);
    text += Line("%1crossingBoxEndCorner%2[0] = %3;crossingBoxEndCorner%2[1] = %4;crossingBoxEndCorner%2[2] = %5;\n\n",
                 number, endCorner);
    text += Line("%1kvApp.GetActiveDocument().GetModel().GetSketchManager()"
                 ".StretchEntities(%2, %3, %4, kvEntities%5, crossingBoxStartCorner%5, crossingBoxEndCorner%5);\n",
                 displacement, number);
    return text;
}

QString CZtConverterKVAPICSharp::WriteCopyEntities(const EntityArray& entities, const OdGeVector3d& displacement,
                                                   bool first)
{
    QString text = first ? TypedEntities(entities) : QString();
    text += Line("%1kvApp.GetActiveDocument().GetModel().GetSketchManager()"
                 ".CopyEntities(%2, %3, %4, types%5, kvEntities%5);\n",
                 displacement, Counters().LocalNameSequence);
    return text;
}

QString CZtConverterKVAPICSharp::WriteMoveEntities(const EntityArray& entities, const OdGeVector3d& displacement,
                                                   bool first)
{
    const std::int32_t number = Counters().LocalNameSequence;
    QString text;
    if (first)
    {
        text += Line("%1DispatchWrapper[] kvEntities%2;\n", number);
        text += Line("%1kvEntities%2 = new DispatchWrapper[%3];\n\n", number, entities.size());
        text += EntityElements("%1kvEntities%2[%3] = new DispatchWrapper(%4);\n", number, entities.names);
        text += kv::LineEnd();
    }
    text += Line("%1kvApp.GetActiveDocument().GetModel().GetSketchManager().MoveEntities(%2, %3, %4, kvEntities%5);\n",
                 displacement, number);
    return text;
}

QString CZtConverterKVAPICSharp::WriteRotateEntities(const EntityArray& entities, const OdGePoint3d& basePoint,
                                                     double angle)
{
    QString text = TypedEntities(entities);
    text += Line("%1kvApp.GetActiveDocument().GetModel().GetSketchManager()"
                 ".RotateEntities(%2, %3, %4, types%5, kvEntities%5);\n",
                 General{basePoint.x}, General{basePoint.y}, General{angle}, Counters().LocalNameSequence);
    return text;
}

QString CZtConverterKVAPICSharp::WriteScaleEntities(const EntityArray& entities, const OdGePoint3d& basePoint,
                                                    double factor)
{
    // The markers are filled in the order x, y, factor, number, z.
    QString text = TypedEntities(entities);
    text += Line("%1kvApp.GetActiveDocument().GetModel().GetSketchManager()"
                 ".ScaleEntities(%2, %3, %6, %4, types%5, kvEntities%5);\n",
                 General{basePoint.x}, General{basePoint.y}, General{factor}, Counters().LocalNameSequence,
                 General{basePoint.z});
    return text;
}
