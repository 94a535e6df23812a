// JavaScript texts of the modify commands; the logic stands in core/modify_commands.cpp.
#include "backends/javascript/converter.h"

using kv::General;

// The array of entities, declared and sized; a second array of their types stands between where it is asked for.
QString CZtConverterKVAPIJavaScript::EntitiesHead(const EntityArray& entities, bool typed)
{
    const std::int32_t number = Counters().LocalNameSequence;
    QString text = Line("%1var kvEntities%2;\n", number);
    if (typed)
    {
        text += Line("%1var types%2 = new Array(%3);\n", number, entities.size());
    }
    text += Line("%1kvEntities%2 = new Array(%3);\n\n", number, entities.size());
    return text;
}

QString CZtConverterKVAPIJavaScript::Entities(const EntityArray& entities)
{
    const std::int32_t number = Counters().LocalNameSequence;
    QString text = EntitiesHead(entities, false);
    for (int i = 0; i < entities.size(); ++i)
    {
        text += Line("%1kvEntities%2[%3] = %4;\n", number, i, entities.names.at(i));
    }
    return text;
}

QString CZtConverterKVAPIJavaScript::TypedEntities(const EntityArray& entities)
{
    const std::int32_t number = Counters().LocalNameSequence;
    QString text = EntitiesHead(entities, true);
    for (int i = 0; i < entities.size(); ++i)
    {
        text += Line("%1types%2[%3] = %4;\n", number, i, GetObjectTypeNumber(entities.types.at(i)));
        text += Line("%1kvEntities%2[%3] = %4;\n", number, i, entities.names.at(i));
    }
    text += kv::LineEnd();
    return text;
}

QString CZtConverterKVAPIJavaScript::WriteMirrorEntities(const EntityArray& entities, const OdGePoint3d& firstPoint,
                                                         const OdGePoint3d& secondPoint, bool flag)
{
    QString text = TypedEntities(entities);
    text += Line("%1mSkMgr.MirrorEntities(%2, %3, %4, %5, %6, %7, %8, types%9, kvEntities%9);\n", firstPoint,
                 secondPoint, FlagWord(flag), Counters().LocalNameSequence);
    return text;
}

QString CZtConverterKVAPIJavaScript::WriteStretchEntities(const EntityArray& entities, const OdGePoint3d& startCorner,
                                                          const OdGePoint3d& endCorner,
                                                          const OdGeVector3d& displacement)
{
    const std::int32_t number = Counters().LocalNameSequence;
    QString text = Entities(entities);
    text += Line("%1var crossingBoxStartCorner%2 = new Array(%3,%4,%5);\n", number, startCorner);
    text += Line("%1var crossingBoxEndCorner%2 = new Array(%3,%4,%5);\n\n", number, endCorner);
    text += Line("%1mSkMgr.StretchEntities(%2, %3, %4, kvEntities%5, crossingBoxStartCorner%5, "
                 "crossingBoxEndCorner%5);\n",
                 displacement, number);
    return text;
}

QString CZtConverterKVAPIJavaScript::WriteCopyEntities(const EntityArray& entities, const OdGeVector3d& displacement,
                                                       bool first)
{
    QString text = first ? TypedEntities(entities) : QString();
    text +=
        Line("%1mSkMgr.CopyEntities(%2, %3, %4, types%5, kvEntities%5);\n", displacement, Counters().LocalNameSequence);
    return text;
}

QString CZtConverterKVAPIJavaScript::WriteMoveEntities(const EntityArray& entities, const OdGeVector3d& displacement,
                                                       bool first)
{
    QString text = first ? Entities(entities) + kv::LineEnd() : QString();
    text += Line("%1mSkMgr.MoveEntities(%2, %3, %4, kvEntities%5);\n", displacement, Counters().LocalNameSequence);
    return text;
}

QString CZtConverterKVAPIJavaScript::WriteRotateEntities(const EntityArray& entities, const OdGePoint3d& basePoint,
                                                         double angle)
{
    QString text = TypedEntities(entities);
    text += Line("%1mSkMgr.RotateEntities(%2, %3, %4, types%5, kvEntities%5);\n", General{basePoint.x},
                 General{basePoint.y}, General{angle}, Counters().LocalNameSequence);
    return text;
}

QString CZtConverterKVAPIJavaScript::WriteScaleEntities(const EntityArray& entities, const OdGePoint3d& basePoint,
                                                        double factor)
{
    // The markers are filled in the order x, y, factor, number, z.
    QString text = TypedEntities(entities);
    text += Line("%1mSkMgr.ScaleEntities(%2, %3, %6, %4, types%5, kvEntities%5);\n", General{basePoint.x},
                 General{basePoint.y}, General{factor}, Counters().LocalNameSequence, General{basePoint.z});
    return text;
}
