// What the application asks of the module that turns journals into macros.
#pragma once

#include "host/kernel/journal_events.h"
#include "host/kernel/result_code.h"
#include "host/odrx/module.h"

class KVHOST_API CZtConverterModule : public OdRxModule
{
    ODRX_DECLARE_MEMBERS(CZtConverterModule)

    // Converts a journal to a macro and its project files.
    //   outputPath     the whole path of the macro's main source file; its folder is made when it is missing
    //   languageIndex  0 C++ API, 1 C#, 2 JavaScript, 3 VB.NET, 4 C++ COM, 5 VBA
    //   recordingMode  1 converts prompt answers, selections and system variables too, any other value leaves them out
    //   hostContext    handed back to the host whenever the value or the tag of a property is read
    // Gives 5100, or -5001 when the language isn't known, an event can't be converted or a file can't be written; the
    // main source file is removed then, except when only a project file failed. Exceptions of the host pass through.
    [[nodiscard]] virtual ResultCode ConvertJournal(const CZtString& outputPath, std::uint32_t languageIndex,
                                                    std::int32_t recordingMode, std::uint64_t hostContext,
                                                    const CZtJournal& journal) = 0;

    // Appends the named values of a drawing object to the collection, each as an element with the name as its tag.
    // The first call of a recording also notes the sheet on which it began.
    virtual void CollectObjectProperties(OdRxObject* object, CZtVariantCollection* collection) = 0;
};

// The two exports of the module, as a loader looks them up.
//   odrxCreateModuleObject  the one module object; takes the handle of the loaded file over and sets it to zero when
//                           it makes the object. Adds no reference. Throws std::bad_alloc without memory.
//   odrxGetAPIVersion       stores the four numbers of the version of the drawing library
using CreateModuleObjectFunction = OdRxModule* (*)(void** moduleHandle);
using GetApiVersionFunction = void (*)(std::uint32_t* major, std::uint32_t* minor, std::uint32_t* corrective,
                                       std::uint32_t* build);
