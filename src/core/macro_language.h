// The language of the macro, which is always asked of the host.
#pragma once

#include "host/kernel/services.h"

// The numbers are the host's.
enum class MacroLanguage : std::uint32_t
{
    CppApi = 0,
    CSharp = 1,
    JavaScript = 2,
    VbNet = 3,
    CppCom = 4,
    Vba = 5,
};

[[nodiscard]] inline MacroLanguage CurrentLanguage()
{
    return static_cast<MacroLanguage>(GetZtSystemServices()->Settings().MacroLanguage());
}

[[nodiscard]] inline bool IsCpp(MacroLanguage language)
{
    return language == MacroLanguage::CppApi || language == MacroLanguage::CppCom;
}

[[nodiscard]] inline bool IsBasic(MacroLanguage language)
{
    return language == MacroLanguage::VbNet || language == MacroLanguage::Vba;
}
