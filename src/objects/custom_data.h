// Extended data of an object, as the API takes it.
#pragma once

#include "host/ge/point3d.h"

#include <QtCore/QString>

#include <cstdint>
#include <variant>
#include <vector>

// One item: its group code and its value.
struct CustomDatum
{
    int groupCode = 0;
    std::variant<QString, double, std::int32_t, OdGePoint3d> value;
};

// What an application attached.
struct CustomData
{
    QString application;
    std::vector<CustomDatum> items;
};
