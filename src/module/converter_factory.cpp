// The converter of a language. Each language makes its own object logic, so that the pair always belongs together.
#include "module/converter_factory.h"

#include "backends/cpp/converter.h"
#include "backends/cppcom/converter.h"
#include "core/macro_language.h"

std::shared_ptr<CZtConverterKVAPI> CreateConverter(std::uint32_t languageIndex, std::int32_t recordingMode,
                                                   std::uint64_t hostContext)
{
    std::shared_ptr<CZtConverterKVAPI> converter;
    switch (static_cast<MacroLanguage>(languageIndex))
    {
    case MacroLanguage::CppApi:
        converter = std::make_shared<CZtConverterKVAPICPP>(recordingMode);
        break;
    case MacroLanguage::CppCom:
        converter = std::make_shared<CZtConverterKVAPICPPCOM>(recordingMode);
        break;
    default:
        return nullptr;
    }
    converter->SetHostContext(hostContext);
    return converter;
}
