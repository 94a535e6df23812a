// The converter of a language. Each language makes its own object logic, so that the pair always belongs together.
#include "module/converter_factory.h"

#include "backends/cpp/converter.h"
#include "backends/cppcom/converter.h"
#include "backends/csharp/converter.h"
#include "backends/javascript/converter.h"
#include "backends/vba/converter.h"
#include "backends/vbnet/converter.h"
#include "core/macro_language.h"

namespace
{

std::shared_ptr<CZtConverterKVAPI> MakeConverter(MacroLanguage language, std::int32_t recordingMode)
{
    switch (language)
    {
    case MacroLanguage::CppApi:
        return std::make_shared<CZtConverterKVAPICPP>(recordingMode);
    case MacroLanguage::CSharp:
        return std::make_shared<CZtConverterKVAPICSharp>(recordingMode);
    case MacroLanguage::JavaScript:
        return std::make_shared<CZtConverterKVAPIJavaScript>(recordingMode);
    case MacroLanguage::VbNet:
        return std::make_shared<CZtConverterKVAPIVbNet>(recordingMode);
    case MacroLanguage::CppCom:
        return std::make_shared<CZtConverterKVAPICPPCOM>(recordingMode);
    case MacroLanguage::Vba:
        return std::make_shared<CZtConverterKVAPIVba>(recordingMode);
    }
    return nullptr;
}

} // namespace

std::shared_ptr<CZtConverterKVAPI> CreateConverter(std::uint32_t languageIndex, std::int32_t recordingMode,
                                                   std::uint64_t hostContext)
{
    auto converter = MakeConverter(static_cast<MacroLanguage>(languageIndex), recordingMode);
    if (converter)
    {
        converter->SetHostContext(hostContext);
    }
    return converter;
}
