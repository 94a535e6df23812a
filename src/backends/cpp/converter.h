// The C++ API: the journal side.
#pragma once

#include "backends/text/text_operations.h"
#include "core/trim_search.h"

class CZtConverterKVAPICPP final : public kv::ConverterText
{
public:
    explicit CZtConverterKVAPICPP(std::int32_t recordingMode);

#define OPERATION(result, name, parameters) [[nodiscard]] result name parameters override;
#include "core/write_operations.def"
#undef OPERATION

private:
    // Pieces that several operations share.
    [[nodiscard]] QString SelectionPoints(int number, const std::vector<OdGePoint3d>& points);
    [[nodiscard]] QString TypedEntities(const EntityArray& entities);
    [[nodiscard]] QString PointsOnEntities(int number, const OdArray<OdGePoint3d>& points);
    [[nodiscard]] QString SearchTrimmed(const TrimSearch& search);
    [[nodiscard]] QString AssignTrimmed(TrimSearch::Shape shape, const TrimSearch::Assignment& assignment);
    [[nodiscard]] QString CompareTrimmed(TrimSearch::Shape shape, const QString& assignments, const QString& prefix);
    [[nodiscard]] QString CornerEntities(int number, const QStringList& firstNames, const OdGePoint3d& firstPoint,
                                         const QStringList& secondNames, const OdGePoint3d& secondPoint);
    [[nodiscard]] QString CoordinateLines(std::int32_t number, const OdArray<OdGePoint2d>& points);

    // Files of the project.
    [[nodiscard]] static QString WriteConnectionHeader(const QString& macroName);
    [[nodiscard]] static QString WriteConnectionSource(const QString& macroName);
    [[nodiscard]] static QString WriteCommandHeader();
    [[nodiscard]] static QString WriteModuleDefinition(const QString& macroName);
};
