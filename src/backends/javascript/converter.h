// JavaScript: the journal side.
#pragma once

#include "backends/text/text_operations.h"
#include "core/trim_search.h"

#include <QtCore/QMap>
#include <span>

class CZtConverterKVAPIJavaScript final : public kv::ConverterText
{
public:
    explicit CZtConverterKVAPIJavaScript(std::int32_t recordingMode);

#define OPERATION(result, name, parameters) [[nodiscard]] result name parameters override;
#include "core/write_operations.def"
#undef OPERATION

#define OPERATION(result, name, parameters) [[nodiscard]] virtual result name parameters;
#include "backends/javascript/reserved_operations.def"
#undef OPERATION

    /// The number of an object type, such as 21 for "kvLineType", since the script library has no enumeration for them.
    /// An unknown name gives 0 and is remembered with it.
    [[nodiscard]] std::int32_t GetObjectTypeNumber(const QString& constant);

    /// The numbers known so far: none before the first call of GetObjectTypeNumber.
    [[nodiscard]] const QMap<QString, std::int32_t>& ObjectTypeNumbers() const { return objectTypeNumbers_; }

private:
    // Arrays: one of a size, its elements, one of points, and the coordinates of points as the values of one.
    [[nodiscard]] QString DeclareArray(const QString& array, int size);
    [[nodiscard]] QString AssignElements(const QString& array, const QStringList& names);
    [[nodiscard]] QString CoordinateArray(const QString& array, const OdArray<OdGePoint2d>& points);
    [[nodiscard]] static QString Coordinates(std::span<const OdGePoint3d> points);

    // Pieces that several operations share.
    [[nodiscard]] QString EntitiesHead(const EntityArray& entities, bool typed);
    [[nodiscard]] QString Entities(const EntityArray& entities);
    [[nodiscard]] QString TypedEntities(const EntityArray& entities);
    [[nodiscard]] QString PickedEntities(const QString& edges, const QStringList& edgeNames, const QString& changed,
                                         const QStringList& changedNames, int number,
                                         const OdArray<OdGePoint3d>& points);
    [[nodiscard]] QString SearchTrimmed(const TrimSearch& search);
    [[nodiscard]] QString AssignTrimmed(TrimSearch::Shape shape, const TrimSearch::Assignment& assignment);
    [[nodiscard]] QString CompareTrimmed(TrimSearch::Shape shape, const QString& assignments, const QString& prefix);
    [[nodiscard]] QString CornerEntities(int number, const QStringList& firstNames, const OdGePoint3d& firstPoint,
                                         const QStringList& secondNames, const OdGePoint3d& secondPoint);

    QMap<QString, std::int32_t> objectTypeNumbers_;
};
