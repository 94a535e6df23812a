// The counters that operations of JavaScript keep for the whole process, over all conversions. A test may start from a
// known state by assigning a new value; nothing else resets them.
#pragma once

struct JavaScriptCounters
{
    // Numbers of the next use. What only numbers the success of a call elsewhere has no counter: no text shows it.
    int WriteAddEntitiesToGroup = 0;
    int WriteTrimEntities = 0;
    int WriteExtendEntities = 0;
    int WriteFilletEntities = 0;
    int WriteChamferEntities = 0;
    int WriteRenameSheet = 0;
    int WriteCreateSheetByTemplate = 0;
    int WriteRenameNamedView = 0;
    int WriteSetNamedViewClass = 0;
    int WriteSetNamedViewWindow = 0;
    int WriteCreateNamedView = 0;
    int WriteRemoveNamedView = 0;
    int WriteSaveCCS = 0;
    int WriteRestoreCCS = 0;
    int WriteRemoveCCS = 0;
    int WritePreviousCCS = 0;
    int WriteWorldCCS = 0;
    int WriteAlignCCSByView = 0;
    int WriteDefaultCCS = 0;
    int WriteSetCCSOrigin = 0;
    int WriteAlignCCSZAxis = 0;
    int WriteAlignCCSByEntity = 0;
    int WriteCreateCCSFromPoints = 0;
    int WriteGetInterfaceFiles = 0;
    int WriteGetSystemFiles = 0;
    int WriteGetDrawingSupportFiles = 0;
    int WriteStringArray = 0;
    int WriteGetLayer = 0;
    int WriteSetTransparency = 0;
    int WriteSetHyperLink = 0;
    int WriteSplitPolyline = 1;
    int WriteZoom = 1;
    int WriteInsertViewTiles = 1;

    [[nodiscard]] static JavaScriptCounters& OfProcess()
    {
        static JavaScriptCounters counters;
        return counters;
    }
};
