// C#: the journal side.
#pragma once

#include "backends/text/text_operations.h"
#include "core/trim_search.h"

#include <span>

class CZtConverterKVAPICSharp final : public kv::ConverterText
{
public:
    explicit CZtConverterKVAPICSharp(std::int32_t recordingMode);

#define OPERATION(result, name, parameters) [[nodiscard]] result name parameters override;
#include "core/write_operations.def"
#undef OPERATION

private:
    // The elements of an array, a line each: of entities from number, index and name, of reals from number, value and
    // index.
    using EntityElement = kv::Template<kv::Indent, int, int, QString>;
    using RealElement = kv::Template<kv::Indent, int, kv::General, int>;
    [[nodiscard]] QString EntityElements(EntityElement element, int number, const QStringList& names) const;
    [[nodiscard]] QString RealElements(RealElement element, int number, std::span<const OdGePoint3d> points) const;

    // Pieces that several operations share.
    [[nodiscard]] QString SelectionPoints(int number, const std::vector<OdGePoint3d>& points) const;
    [[nodiscard]] QString TypedEntities(const EntityArray& entities) const;
    [[nodiscard]] QString SearchTrimmed(const TrimSearch& search) const;
    [[nodiscard]] QString AssignTrimmed(TrimSearch::Shape shape, const TrimSearch::Assignment& assignment) const;
    [[nodiscard]] QString CompareTrimmed(TrimSearch::Shape shape, const QString& assignments,
                                         const QString& prefix) const;
    [[nodiscard]] QString CornerEntities(int number, const QStringList& firstNames, const OdGePoint3d& firstPoint,
                                         const QStringList& secondNames, const OdGePoint3d& secondPoint) const;
};
