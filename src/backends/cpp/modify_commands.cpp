// C++ API texts of the modify commands; the logic stands in core/modify_commands.cpp.
#include "backends/cpp/converter.h"

using kv::General;

// The arrays of entities with their types; an unknown entity gives empty arguments.
QString CZtConverterKVAPICPP::TypedEntities(const EntityArray& entities)
{
    const std::int32_t number = Counters().LocalNameSequence;
    QString text = Line("%1kvObjectPtrArray kvEntities%2;\n"
                        "%1kvLongArray types%2;\n",
                        number);
    for (int i = 0; i < entities.size(); ++i)
    {
        text += Line("%1types%2.add(%3);\n", number, entities.types.at(i));
        text += Line("%1kvEntities%2.add(%3);\n", number, entities.names.at(i));
    }
    text += kv::LineEnd();
    return text;
}

QString CZtConverterKVAPICPP::WriteMirrorEntities(const EntityArray& entities, const OdGePoint3d& firstPoint,
                                                  const OdGePoint3d& secondPoint, bool flag)
{
    QString text = TypedEntities(entities);
    text += Line("%1kvSketchManager->MirrorEntities(%2, %3, %4, %5, %6, %7, %8, types%9, kvEntities%9);\n", firstPoint,
                 secondPoint, FlagWord(flag), Counters().LocalNameSequence);
    return text;
}

QString CZtConverterKVAPICPP::WriteStretchEntities(const EntityArray& entities, const OdGePoint3d& startCorner,
                                                   const OdGePoint3d& endCorner, const OdGeVector3d& displacement)
{
    const std::int32_t number = Counters().LocalNameSequence;
    QString text = Line("%1kvObjectPtrArray kvEntities%2;\n"
                        "%1kvDoubleArray crossingBoxStartCorner%2;\n"
                        "%1kvDoubleArray crossingBoxEndCorner%2;\n\n",
                        number);
    for (const QString& name : entities.names)
    {
        text += Line("%1kvEntities%2.add(%3);\n", number, name);
    }
    text += Line("%1crossingBoxStartCorner%2.add(%3);crossingBoxStartCorner%2.add(%4);crossingBoxStartCorner%2"
                 ".add(%5);\n",
                 number, startCorner);
    text += Line("%1crossingBoxEndCorner%2.add(%3);crossingBoxEndCorner%2.add(%4);crossingBoxEndCorner%2.add(%5);\n\n",
                 number, endCorner);
    text += Line("%1kvSketchManager->StretchEntities(%2"
                 ", %3, %4, kvEntities%5, crossingBoxStartCorner%5, crossingBoxEndCorner%5);\n",
                 displacement, number);
    return text;
}

QString CZtConverterKVAPICPP::WriteCopyEntities(const EntityArray& entities, const OdGeVector3d& displacement,
                                                bool first)
{
    QString text = first ? TypedEntities(entities) : QString();
    text += Line("%1kvSketchManager->CopyEntities(%2, %3, %4, types%5, kvEntities%5);\n", displacement,
                 Counters().LocalNameSequence);
    return text;
}

QString CZtConverterKVAPICPP::WriteMoveEntities(const EntityArray& entities, const OdGeVector3d& displacement,
                                                bool first)
{
    const std::int32_t number = Counters().LocalNameSequence;
    QString text;
    if (first)
    {
        text += Line("%1kvObjectPtrArray kvEntities%2;\n", number);
        for (const QString& name : entities.names)
        {
            text += Line("%1kvEntities%2.add(%3);\n", number, name);
        }
        text += kv::LineEnd();
    }
    text += Line("%1kvSketchManager->MoveEntities(%2, %3, %4, kvEntities%5);\n", displacement, number);
    return text;
}

QString CZtConverterKVAPICPP::WriteRotateEntities(const EntityArray& entities, const OdGePoint3d& basePoint,
                                                  double angle)
{
    QString text = TypedEntities(entities);
    text += Line("%1kvSketchManager->RotateEntities(%2, %3, %4, types%5, kvEntities%5);\n", General{basePoint.x},
                 General{basePoint.y}, General{angle}, Counters().LocalNameSequence);
    return text;
}

QString CZtConverterKVAPICPP::WriteScaleEntities(const EntityArray& entities, const OdGePoint3d& basePoint,
                                                 double factor)
{
    // The markers are filled in the order x, y, factor, number, z.
    QString text = TypedEntities(entities);
    text += Line("%1kvSketchManager->ScaleEntities(%2, %3, %6, %4, types%5, kvEntities%5);\n", General{basePoint.x},
                 General{basePoint.y}, General{factor}, Counters().LocalNameSequence, General{basePoint.z});
    return text;
}
