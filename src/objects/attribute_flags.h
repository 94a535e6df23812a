// What an attribute definition says of its attributes.
#pragma once

struct AttributeFlags
{
    bool constant = false;
    bool invisible = false;
    bool preset = false;
    bool verify = false;
    bool lockPosition = false;
};
