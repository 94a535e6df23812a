// C++ COM: the journal side.
#pragma once

#include "backends/text/text_operations.h"
#include "core/trim_search.h"

class CZtConverterKVAPICPPCOM final : public kv::ConverterText
{
public:
    explicit CZtConverterKVAPICPPCOM(std::int32_t recordingMode);

#define OPERATION(result, name, parameters) [[nodiscard]] result name parameters override;
#include "core/write_operations.def"
#undef OPERATION

private:
    // Pieces that several operations share.
    [[nodiscard]] QString TypedEntities(const EntityArray& entities);
    [[nodiscard]] QString EdgeArrays(int number, const char* edgesName, const QStringList& edges,
                                     const char* changedName, const QStringList& changed,
                                     const OdArray<OdGePoint3d>& points);
    [[nodiscard]] QString SearchTrimmed(const TrimSearch& search);
    [[nodiscard]] QString AssignTrimmed(TrimSearch::Shape shape, const TrimSearch::Assignment& assignment);
    [[nodiscard]] QString CompareTrimmed(TrimSearch::Shape shape, const QString& assignments, const QString& prefix);
    [[nodiscard]] QString ComparePoints();
    [[nodiscard]] QString CornerEntities(int number, const QStringList& firstNames, const OdGePoint3d& firstPoint,
                                         const QStringList& secondNames, const OdGePoint3d& secondPoint);

    // An element of a keyword array.
    [[nodiscard]] QString KeywordElement(const char* array, std::int32_t number, int index, const QString& keyword);
};
