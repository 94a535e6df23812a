// What the C++ API leaves unsaid.
#include "backends/cpp/converter.h"
#include "backends/cpp/object.h"

QString CZtConverterKVAPICPP::WriteComment(const QString& /*text*/)
{
    return {};
}

QString CZtConverterKVAPICPP::WriteCommentBlockSeparator()
{
    return {};
}

QString CZtConverterKVAPIObjectCPP::WriteObjectAddedEnd()
{
    return {};
}

QString CZtConverterKVAPIObjectCPP::WriteObjectModifiedEnd()
{
    return {};
}

QString CZtConverterKVAPIObjectCPP::WriteRenameEntity(const QString& /*variable*/, const QString& /*name*/)
{
    return {};
}

QString CZtConverterKVAPIObjectCPP::WriteSetRichLine(const QString& /*variable*/, std::int32_t /*index*/,
                                                     double /*offset*/, std::int32_t /*color*/,
                                                     const QString& /*style*/)
{
    return {};
}

QString CZtConverterKVAPIObjectCPP::WriteSetRichLineOffset(const QString& /*variable*/, std::int32_t /*index*/,
                                                           double /*offset*/)
{
    return {};
}

QString CZtConverterKVAPIObjectCPP::WriteSetRichLineColor(const QString& /*variable*/, std::int32_t /*index*/,
                                                          std::int32_t /*color*/)
{
    return {};
}

QString CZtConverterKVAPIObjectCPP::WriteSetRichLineStyle(const QString& /*variable*/, std::int32_t /*index*/,
                                                          const QString& /*style*/)
{
    return {};
}

QString CZtConverterKVAPIObjectCPP::WriteSetCellAlignment(const QString& /*variable*/, std::int32_t /*cellType*/,
                                                          const QString& /*alignment*/)
{
    return {};
}

QString CZtConverterKVAPIObjectCPP::WriteSetCellColor(const QString& /*variable*/, const QString& /*word*/,
                                                      std::int32_t /*cellType*/, const OdCmColor& /*color*/)
{
    return {};
}

QString CZtConverterKVAPIObjectCPP::WriteSetCellTextHeight(const QString& /*variable*/, std::int32_t /*cellType*/,
                                                           double /*height*/)
{
    return {};
}

QString CZtConverterKVAPIObjectCPP::WriteSetCellTextStyle(const QString& /*variable*/, std::int32_t /*cellType*/,
                                                          const QString& /*style*/)
{
    return {};
}

QString CZtConverterKVAPIObjectCPP::WriteSetCellMargin(const QString& /*variable*/, const QString& /*word*/,
                                                       std::int32_t /*cellType*/, double /*margin*/)
{
    return {};
}

QString CZtConverterKVAPIObjectCPP::WriteSetBordersColor(const QString& /*variable*/, std::int32_t /*cellType*/,
                                                         std::int32_t /*lineType*/, const OdCmColor& /*color*/)
{
    return {};
}
