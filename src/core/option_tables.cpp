// The options of the automation API that stand for system variables.
#include "core/option_tables.h"

#include <QHash>

namespace kv
{
namespace
{
constexpr OptionRow commandBool[] = {
    {"LIMCHECK", "kvCommandOptionBool_EnblBnds"},       {"QTEXTMODE", "kvCommandOptionBool_EnblBoxTxt"},
    {"UCSVP", "kvCommandOptionBool_EnblCCSVPMode"},     {"WORLDVIEW", "kvCommandOptionBool_EnblCSByVP"},
    {"DIMALT", "kvCommandOptionBool_EnblDlDm"},         {"DIMSAH", "kvCommandOptionBool_EnblDmArwUsr"},
    {"DIMTOFL", "kvCommandOptionBool_EnblDmDLBtwn"},    {"DIMSD1", "kvCommandOptionBool_EnblDmDLDsp1"},
    {"DIMSD2", "kvCommandOptionBool_EnblDmDLDsp2"},     {"DIMSE1", "kvCommandOptionBool_EnblDmELDsp1"},
    {"DIMSE2", "kvCommandOptionBool_EnblDmELDsp2"},     {"DIMSOXD", "kvCommandOptionBool_EnblDmFitArwSup"},
    {"DIMTOL", "kvCommandOptionBool_EnblDmTolAppnd"},   {"DIMTOH", "kvCommandOptionBool_EnblDmTxtAlgn"},
    {"DIMUPT", "kvCommandOptionBool_EnblDmTxtBtwn"},    {"DIMTIX", "kvCommandOptionBool_EnblDmTxtBtwnExtLns"},
    {"FILLMODE", "kvCommandOptionBool_EnblFills"},      {"GRIDMODE", "kvCommandOptionBool_EnblGrid"},
    {"LWDISPLAY", "kvCommandOptionBool_EnblLWtDsp"},    {"ORTHOMODE", "kvCommandOptionBool_EnblOrtho"},
    {"PLINEGEN", "kvCommandOptionBool_EnblPLineVert"},  {"PELLIPSE", "kvCommandOptionBool_EnblPLnEllps"},
    {"REGENMODE", "kvCommandOptionBool_EnblRbldAuto"},  {"XEDIT", "kvCommandOptionBool_EnblRefEdt"},
    {"DISPSILH", "kvCommandOptionBool_EnblSlhEdgDsp"},  {"SNAPMODE", "kvCommandOptionBool_EnblSnp"},
    {"SNAPSTYL", "kvCommandOptionBool_EnblSnpIso"},     {"SPLFRAME", "kvCommandOptionBool_EnblSplnFrmDsp"},
    {"PSTYLEMODE", "kvCommandOptionBool_EnblSTBs"},     {"DIMLIM", "kvCommandOptionBool_EnblTDm"},
    {"HIDETEXT", "kvCommandOptionBool_EnblTxtHide"},    {"TILEMODE", "kvCommandOptionBool_EnblVP"},
    {"PSLTSCALE", "kvCommandOptionBool_EnblVPLScl"},    {"DWGTITLED", "kvCommandOptionBool_GetStatDWGNm"},
    {"DIMASO", "kvCommandOptionBool_LgcyDIMASO"},       {"DIMSHO", "kvCommandOptionBool_LgcyDIMSHO"},
    {"EXTNAMES", "kvCommandOptionBool_LgcyEXTNAMES"},   {"UCSFOLLOW", "kvCommandOptionBool_LgcyUCSFOLLOW"},
    {"VISRETAIN", "kvCommandOptionBool_LgcyVISRETAIN"}, {"ANGDIR", "kvCommandOptionBool_SetAngDir"},
    {"DIMTIH", "kvCommandOptionBool_SetDmTxtHPosBtwn"}, {"OLESTARTUP", "kvCommandOptionBool_SetFLXOLESTARTUP"},
    {"SKPOLY", "kvCommandOptionBool_SetSktchMode"},     {"MIRRTEXT", "kvCommandOptionBool_SetTxtMirrMode"},
};

constexpr OptionRow commandInt8[] = {
    {"DIMALTZ", "kvCommandOptionInt8_SetDlDmZroDsp"},
    {"DIMTOLJ", "kvCommandOptionInt8_SetDmTolVJst"},
    {"DIMALTTZ", "kvCommandOptionInt8_SetTDmDZroDsp"},
    {"DIMTZIN", "kvCommandOptionInt8_SetTDmZroDsp"},
};

constexpr OptionRow commandInt16[] = {
    {"CHAMMODE", "kvCommandOptionInt16_EnblChmfAng"},
    {"XCLIPFRAME", "kvCommandOptionInt16_EnblClpFrmDsp"},
    {"CMDECHO", "kvCommandOptionInt16_EnblCmdEcho"},
    {"HPBOUND", "kvCommandOptionInt16_EnblHtchBndTyp"},
    {"HPDOUBLE", "kvCommandOptionInt16_EnblHtchDbl"},
    {"UNITMODE", "kvCommandOptionInt16_EnblUntSpcSupp"},
    {"CVPORT", "kvCommandOptionInt16_GetActVP"},
    {"ERRNO", "kvCommandOptionInt16_GetLstErr"},
    {"CMDACTIVE", "kvCommandOptionInt16_GetStatActCmd"},
    {"WORLDUCS", "kvCommandOptionInt16_GetStatCCS"},
    {"UNDOCTL", "kvCommandOptionInt16_GetStateUndo"},
    {"DIASTAT", "kvCommandOptionInt16_GetStatLstDlg"},
    {"DBMOD", "kvCommandOptionInt16_LgcyDBMOD"},
    {"DIMFIT", "kvCommandOptionInt16_LgcyDIMFIT"},
    {"DIMUNIT", "kvCommandOptionInt16_LgcyDIMUNIT"},
    {"DWGCODEPAGE", "kvCommandOptionInt16_LgcyDWGCODEPAGE"},
    {"HALOGAP", "kvCommandOptionInt16_LgcyHALOGAP"},
    {"HANDLES", "kvCommandOptionInt16_LgcyHANDLES"},
    {"INDEXCTL", "kvCommandOptionInt16_LgcyINDEXCTL"},
    {"ISOLINES", "kvCommandOptionInt16_LgcyISOLINES"},
    {"OBSCUREDCOLOR", "kvCommandOptionInt16_LgcyOBSCUREDCOLOR"},
    {"OBSCUREDLTYPE", "kvCommandOptionInt16_LgcyOBSCUREDLTYPE"},
    {"SHADEDGE", "kvCommandOptionInt16_LgcySHADEDGE"},
    {"SHADEDIF", "kvCommandOptionInt16_LgcySHADEDIF"},
    {"SORTENTS", "kvCommandOptionInt16_LgcySORTENTS"},
    {"VIEWMODE", "kvCommandOptionInt16_LgcyVIEWMODE"},
    {"CECOLOR", "kvCommandOptionInt16_SetActLClr"},
    {"CELWEIGHT", "kvCommandOptionInt16_SetActLWt"},
    {"PDMODE", "kvCommandOptionInt16_SetActPntStyl"},
    {"MAXACTVP", "kvCommandOptionInt16_SetActVPLvl"},
    {"DIMADEC", "kvCommandOptionInt16_SetAngDmPrc"},
    {"DIMAUNIT", "kvCommandOptionInt16_SetAngDmUnt"},
    {"DIMAZIN", "kvCommandOptionInt16_SetAngDmZroDsp"},
    {"AUPREC", "kvCommandOptionInt16_SetAngPrc"},
    {"AUNITS", "kvCommandOptionInt16_SetAngUnt"},
    {"ATTMODE", "kvCommandOptionInt16_SetBAttDsp"},
    {"INSUNITS", "kvCommandOptionInt16_SetBlkInsUnt"},
    {"UCSICON", "kvCommandOptionInt16_SetCSIcnDsp"},
    {"DIMALTD", "kvCommandOptionInt16_SetDlDmPrc"},
    {"DIMALTU", "kvCommandOptionInt16_SetDlDmUnt"},
    {"DIMCLRD", "kvCommandOptionInt16_SetDmDLClr"},
    {"DIMLWD", "kvCommandOptionInt16_SetDmDLWt"},
    {"DIMCLRE", "kvCommandOptionInt16_SetDmELClr"},
    {"DIMLWE", "kvCommandOptionInt16_SetDmELWt"},
    {"DIMATFIT", "kvCommandOptionInt16_SetDmFitMode"},
    {"DIMASSOC", "kvCommandOptionInt16_SetDmRltvMode"},
    {"DIMCLRT", "kvCommandOptionInt16_SetDmTxtClr"},
    {"DIMJUST", "kvCommandOptionInt16_SetDmTxtHPos"},
    {"DIMTMOVE", "kvCommandOptionInt16_SetDmTxtMvMode"},
    {"DIMTAD", "kvCommandOptionInt16_SetDmTxtVPosFit"},
    {"DIMZIN", "kvCommandOptionInt16_SetDmZroDsp"},
    {"PROXYGRAPHICS", "kvCommandOptionInt16_SetFLXPROXYGRAPHICS"},
    {"SPLINETYPE", "kvCommandOptionInt16_SetFLXSPLINETYPE"},
    {"HPDRAWORDER", "kvCommandOptionInt16_SetHtchPlcmnt"},
    {"SNAPISOPAIR", "kvCommandOptionInt16_SetIsoPln"},
    {"DIMDSEP", "kvCommandOptionInt16_SetLDmDecSym"},
    {"DIMFRAC", "kvCommandOptionInt16_SetLDmFrmt"},
    {"DIMDEC", "kvCommandOptionInt16_SetLDmPrc"},
    {"DIMLUNIT", "kvCommandOptionInt16_SetLDmUnt"},
    {"CMLJUST", "kvCommandOptionInt16_SetNoteJst"},
    {"SURFTYPE", "kvCommandOptionInt16_SetPEdtSmthMode"},
    {"SPLINESEGS", "kvCommandOptionInt16_SetPEdtSplSegs"},
    {"BINDTYPE", "kvCommandOptionInt16_SetRefBindMode"},
    {"SURFU", "kvCommandOptionInt16_SetSrfMU"},
    {"SURFTAB1", "kvCommandOptionInt16_SetSrfTbs1"},
    {"SURFTAB2", "kvCommandOptionInt16_SetSrfTbs2"},
    {"SURFV", "kvCommandOptionInt16_SetSrgNV"},
    {"TSTACKSIZE", "kvCommandOptionInt16_SetStkFracTxtHt"},
    {"TSTACKALIGN", "kvCommandOptionInt16_SetStkFracTyp"},
    {"DIMALTTD", "kvCommandOptionInt16_SetTDmDPrc"},
    {"DIMTDEC", "kvCommandOptionInt16_SetTDmPrc"},
    {"TEXTQLTY", "kvCommandOptionInt16_SetTxtRes"},
    {"LUNITS", "kvCommandOptionInt16_SetUntMode"},
    {"LUPREC", "kvCommandOptionInt16_SetUntPrc"},
    {"MEASUREMENT", "kvCommandOptionInt16_SetUntTyp"},
    {"USERI1", "kvCommandOptionInt16_SetUsrInt1"},
    {"USERI2", "kvCommandOptionInt16_SetUsrInt2"},
    {"USERI3", "kvCommandOptionInt16_SetUsrInt3"},
    {"USERI4", "kvCommandOptionInt16_SetUsrInt4"},
    {"USERI5", "kvCommandOptionInt16_SetUsrInt5"},
};

constexpr OptionRow commandDouble[] = {
    {"AREA", "kvCommandOptionDouble_GetArea"},
    {"PERIMETER", "kvCommandOptionDouble_GetAreaPerim"},
    {"DISTANCE", "kvCommandOptionDouble_GetDst"},
    {"TDCREATE", "kvCommandOptionDouble_GetDtCrt"},
    {"TDUPDATE", "kvCommandOptionDouble_GetDtLstSv"},
    {"TDUUPDATE", "kvCommandOptionDouble_GetDtLstUSv"},
    {"LASTANGLE", "kvCommandOptionDouble_GetLstAng"},
    {"TDINDWG", "kvCommandOptionDouble_GetTmLstEdt"},
    {"TDUSRTIMER", "kvCommandOptionDouble_GetTmUsrEdit"},
    {"VIEWSIZE", "kvCommandOptionDouble_GetVwHt"},
    {"BACKZ", "kvCommandOptionDouble_LgcyBACKZ"},
    {"FACETRES", "kvCommandOptionDouble_LgcyFACETRES"},
    {"FRONTZ", "kvCommandOptionDouble_LgcyFRONTZ"},
    {"LENSLENGTH", "kvCommandOptionDouble_LgcyLENSLENGTH"},
    {"VIEWTWIST", "kvCommandOptionDouble_LgcyVIEWTWIST"},
    {"CELTSCALE", "kvCommandOptionDouble_SetActLScl"},
    {"PDSIZE", "kvCommandOptionDouble_SetActPntSz"},
    {"THICKNESS", "kvCommandOptionDouble_SetActThk"},
    {"ANGBASE", "kvCommandOptionDouble_SetAngBase"},
    {"CHAMFERD", "kvCommandOptionDouble_SetChmfAng"},
    {"CHAMFERA", "kvCommandOptionDouble_SetChmfDst1"},
    {"CHAMFERB", "kvCommandOptionDouble_SetChmfDst2"},
    {"CHAMFERC", "kvCommandOptionDouble_SetChmfLen"},
    {"CIRCLERAD", "kvCommandOptionDouble_SetCirRad"},
    {"DIMALTF", "kvCommandOptionDouble_SetDlDmMltpyScl"},
    {"DIMALTRND", "kvCommandOptionDouble_SetDlDmRnd"},
    {"DIMASZ", "kvCommandOptionDouble_SetDmArwSz"},
    {"DIMDLE", "kvCommandOptionDouble_SetDmDLDst"},
    {"DIMDLI", "kvCommandOptionDouble_SetDmDLOfst"},
    {"DIMEXE", "kvCommandOptionDouble_SetDmELDst"},
    {"DIMEXO", "kvCommandOptionDouble_SetDmELOfst"},
    {"DIMTFAC", "kvCommandOptionDouble_SetDmFrcScl"},
    {"DIMSCALE", "kvCommandOptionDouble_SetDmGlblScl"},
    {"DIMTP", "kvCommandOptionDouble_SetDmTolTxtMax"},
    {"DIMTXT", "kvCommandOptionDouble_SetDmTxtHt"},
    {"DIMGAP", "kvCommandOptionDouble_SetDmTxtOfst"},
    {"DIMTVP", "kvCommandOptionDouble_SetDmTxtVPos"},
    {"FILLETRAD", "kvCommandOptionDouble_SetFltRad"},
    {"LTSCALE", "kvCommandOptionDouble_SetGblLScl"},
    {"HPANG", "kvCommandOptionDouble_SetHtchPtrnAng"},
    {"HPSCALE", "kvCommandOptionDouble_SetHtchPtrnScl"},
    {"HPSPACE", "kvCommandOptionDouble_SetHtchSpc"},
    {"DIMRND", "kvCommandOptionDouble_SetLDmRnd"},
    {"DIMLFAC", "kvCommandOptionDouble_SetLDmSclFac"},
    {"CMLSCALE", "kvCommandOptionDouble_SetNoteScl"},
    {"OFFSETDIST", "kvCommandOptionDouble_SetOfstDst"},
    {"PLINEWID", "kvCommandOptionDouble_SetPLineWdth"},
    {"DIMCEN", "kvCommandOptionDouble_SetRDmCM"},
    {"DIMTSZ", "kvCommandOptionDouble_SetRDmCMSz"},
    {"DONUTID", "kvCommandOptionDouble_SetRingID"},
    {"DONUTOD", "kvCommandOptionDouble_SetRingOD"},
    {"SKETCHINC", "kvCommandOptionDouble_SetSktchInc"},
    {"SNAPANG", "kvCommandOptionDouble_SetSnpAng"},
    {"DIMTM", "kvCommandOptionDouble_SetTDmMin"},
    {"TRACEWID", "kvCommandOptionDouble_SetTrcWdth"},
    {"TEXTSIZE", "kvCommandOptionDouble_SetTxtHt"},
    {"USERR1", "kvCommandOptionDouble_SetUsrRl1"},
    {"USERR2", "kvCommandOptionDouble_SetUsrRl2"},
    {"USERR3", "kvCommandOptionDouble_SetUsrRl3"},
    {"USERR4", "kvCommandOptionDouble_SetUsrRl4"},
    {"USERR5", "kvCommandOptionDouble_SetUsrRl5"},
    {"PSVPSCALE", "kvCommandOptionDouble_SetVPScl"},
    {"ELEVATION", "kvCommandOptionDouble_SetZElv"},
};

constexpr OptionRow commandString[] = {
    {"CMDNAMES", "kvCommandOptionString_GetActCmd"},        {"REFEDITNAME", "kvCommandOptionString_GetActComp"},
    {"DIMSTYLE", "kvCommandOptionString_GetActDimStyl"},    {"CTAB", "kvCommandOptionString_GetActTab"},
    {"LASTPROMPT", "kvCommandOptionString_GetLstPrmpt"},    {"UCSNAME", "kvCommandOptionString_GetNmActCS"},
    {"CPLOTSTYLE", "kvCommandOptionString_GetNmPrnStyl"},   {"USERS1", "kvCommandOptionString_GetUsrStrn1"},
    {"USERS2", "kvCommandOptionString_GetUsrStrn2"},        {"USERS3", "kvCommandOptionString_GetUsrStrn3"},
    {"USERS4", "kvCommandOptionString_GetUsrStrn4"},        {"USERS5", "kvCommandOptionString_GetUsrStrn5"},
    {"CANNOSCALE", "kvCommandOptionString_LgcyCANNOSCALE"}, {"PROJECTNAME", "kvCommandOptionString_LgcyPROJECTNAME"},
    {"INSNAME", "kvCommandOptionString_SetActBlkNm"},       {"CLAYER", "kvCommandOptionString_SetActLay"},
    {"CELTYPE", "kvCommandOptionString_SetActLStyl"},       {"CTABLESTYLE", "kvCommandOptionString_SetActTblStyl"},
    {"TEXTSTYLE", "kvCommandOptionString_SetActTxtStyl"},   {"UCSBASE", "kvCommandOptionString_SetCCSBase"},
    {"DIMBLK", "kvCommandOptionString_SetDmArwBlk"},        {"DIMBLK1", "kvCommandOptionString_SetDmArwBlk1"},
    {"DIMBLK2", "kvCommandOptionString_SetDmArwBlk2"},      {"DIMLDRBLK", "kvCommandOptionString_SetDmLdrBlk"},
    {"DIMTXSTY", "kvCommandOptionString_SetDmTxtStyl"},     {"LOGFILENAME", "kvCommandOptionString_SetHistFNm"},
    {"HPNAME", "kvCommandOptionString_SetHtchPtrn"},        {"HYPERLINKBASE", "kvCommandOptionString_SetHyprLnkBase"},
    {"DIMPOST", "kvCommandOptionString_SetLDmPrfxSfx"},     {"CMLSTYLE", "kvCommandOptionString_SetNoteStyl"},
    {"PUCSBASE", "kvCommandOptionString_SetShtCSNm"},       {"DIMAPOST", "kvCommandOptionString_SetTDmPrfxSfx"},
};

constexpr OptionRow commandPoint2d[] = {
    {"SCREENSIZE", "kvCommandOptionPoint2d_GetSzVP"},  {"LIMMIN", "kvCommandOptionPoint2d_GetXYLLBnds"},
    {"LIMMAX", "kvCommandOptionPoint2d_GetXYURBnds"},  {"GRIDUNIT", "kvCommandOptionPoint2d_SetGridUnt"},
    {"SNAPBASE", "kvCommandOptionPoint2d_SetSnpBase"}, {"SNAPUNIT", "kvCommandOptionPoint2d_SetSnpSpc"},
};

constexpr OptionRow commandPoint3d[] = {
    {"LASTPOINT", "kvCommandOptionPoint3d_GetLstXY"},   {"UCSORG", "kvCommandOptionPoint3d_GetOrgActCS"},
    {"VIEWCTR", "kvCommandOptionPoint3d_GetVwCtr"},     {"UCSXDIR", "kvCommandOptionPoint3d_GetXDirActCS"},
    {"EXTMAX", "kvCommandOptionPoint3d_GetXYLLFit"},    {"EXTMIN", "kvCommandOptionPoint3d_GetXYURFit"},
    {"UCSYDIR", "kvCommandOptionPoint3d_GetYDirActCS"}, {"TARGET", "kvCommandOptionPoint3d_LgcyTARGET"},
    {"VIEWDIR", "kvCommandOptionPoint3d_LgcyVIEWDIR"},  {"VSMAX", "kvCommandOptionPoint3d_LgcyVSMAX"},
    {"VSMIN", "kvCommandOptionPoint3d_LgcyVSMIN"},      {"INSBASE", "kvCommandOptionPoint3d_SetBase"},
};

constexpr OptionGroup commandGroups[] = {
    {OptionKind::Bool, commandBool},       {OptionKind::Int8, commandInt8},     {OptionKind::Int16, commandInt16},
    {OptionKind::Double, commandDouble},   {OptionKind::String, commandString}, {OptionKind::Point2d, commandPoint2d},
    {OptionKind::Point3d, commandPoint3d},
};

constexpr OptionRow applicationBool[] = {
    {"ATTDIA", "kvApplicationOptionBool_EnblBAttDlgs"},
    {"ATTREQ", "kvApplicationOptionBool_EnblBAttVrfy"},
    {"RASTERPREVIEW", "kvApplicationOptionBool_EnblBMPPrvw"},
    {"PICKFIRST", "kvApplicationOptionBool_EnblEntSelPreSel"},
    {"APBOX", "kvApplicationOptionBool_EnblGBox"},
    {"IMAGEHLT", "kvApplicationOptionBool_EnblImgHlt"},
    {"FILEDIA", "kvApplicationOptionBool_EnblNavDlgs"},
    {"PROXYNOTICE", "kvApplicationOptionBool_EnblPrxyWrng"},
    {"DELOBJ", "kvApplicationOptionBool_EnblRgnBndryDel"},
    {"RTDISPLAY", "kvApplicationOptionBool_EnblRstrOleDsp"},
    {"TEXTFILL", "kvApplicationOptionBool_SetTxtPrnFill"},
};

constexpr OptionRow applicationInt16[] = {
    {"EXPLMODE", "kvApplicationOptionInt16_EnblBlkXpld"},
    {"CHAMMODE", "kvApplicationOptionInt16_EnblChmfAng"},
    {"CMDDIA", "kvApplicationOptionInt16_EnblCmdDlgs"},
    {"DRAGMODE", "kvApplicationOptionInt16_EnblDrgDsp"},
    {"EDGEMODE", "kvApplicationOptionInt16_EnblEdgeExtd"},
    {"GRIPBLOCK", "kvApplicationOptionInt16_EnblEGripBlk"},
    {"GRIPTIPS", "kvApplicationOptionInt16_EnblEGripTpDsp"},
    {"HIGHLIGHT", "kvApplicationOptionInt16_EnblEntSelHlt"},
    {"TRACKPATH", "kvApplicationOptionInt16_EnblETrkDsp"},
    {"TRIMMODE", "kvApplicationOptionInt16_EnblFltTrm"},
    {"MBUTTONPAN", "kvApplicationOptionInt16_EnblMMBPan"},
    {"NOMUTT", "kvApplicationOptionInt16_EnblMutt"},
    {"PEDITACCEPT", "kvApplicationOptionInt16_EnblPEdtCnvrtWrng"},
    {"SNAPTYPE", "kvApplicationOptionInt16_EnblRSnp"},
    {"TOOLTIPS", "kvApplicationOptionInt16_EnblTlTps"},
    {"SYSCODEPAGE", "kvApplicationOptionInt16_GetNmCdePg"},
    {"SCREENMODE", "kvApplicationOptionInt16_GetStatScreen"},
    {"ACISOUTVER", "kvApplicationOptionInt16_LgcyACISOUTVER"},
    {"STARTUP", "kvApplicationOptionInt16_LgcySTARTUP"},
    {"WMFBKGND", "kvApplicationOptionInt16_LgcyWMFBKGND"},
    {"WMFFOREGND", "kvApplicationOptionInt16_LgcyWMFFOREGND"},
    {"INSUNITSDEFSOURCE", "kvApplicationOptionInt16_SetActBlkInsUnt"},
    {"AFLAGS", "kvApplicationOptionInt16_SetBAttMode"},
    {"UCSAXISANG", "kvApplicationOptionInt16_SetCCSAxisAng"},
    {"XFADECTL", "kvApplicationOptionInt16_SetCompEdFd"},
    {"COORDS", "kvApplicationOptionInt16_SetCrdDsp"},
    {"LWDEFAULT", "kvApplicationOptionInt16_SetDfltLWt"},
    {"GRIPHOT", "kvApplicationOptionInt16_SetEGripActClr"},
    {"GRIPOBJLIMIT", "kvApplicationOptionInt16_SetEGripDspLmt"},
    {"GRIPS", "kvApplicationOptionInt16_SetEGripDspMode"},
    {"GRIPCOLOR", "kvApplicationOptionInt16_SetEGripInActClr"},
    {"PICKSTYLE", "kvApplicationOptionInt16_SetEntSelMode"},
    {"OSMODE", "kvApplicationOptionInt16_SetESnpMode"},
    {"APERTURE", "kvApplicationOptionInt16_SetGBoxSz"},
    {"HPASSOC", "kvApplicationOptionInt16_SetHtchRltvMode"},
    {"LOGFILEMODE", "kvApplicationOptionInt16_SetLogMode"},
    {"LWUNITS", "kvApplicationOptionInt16_SetLWtUnt"},
    {"MENUECHO", "kvApplicationOptionInt16_SetMnuEcho"},
    {"OFFSETGAPTYPE", "kvApplicationOptionInt16_SetOfstGapMode"},
    {"OLEQUALITY", "kvApplicationOptionInt16_SetOLEQlty"},
    {"POLYSIDES", "kvApplicationOptionInt16_SetPGonSides"},
    {"CURSORSIZE", "kvApplicationOptionInt16_SetPntrSz"},
    {"PLOTROTMODE", "kvApplicationOptionInt16_SetPrnRot"},
    {"PROJMODE", "kvApplicationOptionInt16_SetProjMode"},
    {"PROXYSHOW", "kvApplicationOptionInt16_SetPrxyDspMode"},
    {"PICKBOX", "kvApplicationOptionInt16_SetSelBoxSz"},
    {"SHORTCUTMENU", "kvApplicationOptionInt16_SetShrtCtMnuMode"},
};

constexpr OptionRow applicationInt32[] = {
    {"PICKDRAG", "kvApplicationOptionInt32_EnblClkDrg"},  {"PICKAUTO", "kvApplicationOptionInt32_EnblEntSelAuto"},
    {"EXPERT", "kvApplicationOptionInt32_SetCmdPrmtLvl"}, {"OSNAPCOORD", "kvApplicationOptionInt32_SetCrdInptMode"},
    {"PICKADD", "kvApplicationOptionInt32_SetEntSelAdd"}, {"SAVETIME", "kvApplicationOptionInt32_SetSvTm"},
};

constexpr OptionRow applicationDouble[] = {
    {"CDATE", "kvApplicationOptionDouble_GetDt"},
    {"DATE", "kvApplicationOptionDouble_GetDtJul"},
    {"POLARANG", "kvApplicationOptionDouble_SetPGdAng"},
    {"POLARDIST", "kvApplicationOptionDouble_SetRSnpSpc"},
};

constexpr OptionRow applicationString[] = {
    {"DCTCUST", "kvApplicationOptionString_GetActDict"},
    {"LOGINNAME", "kvApplicationOptionString_GetActUsr"},
    {"LOCALE", "kvApplicationOptionString_GetInfOS"},
    {"SAVENAME", "kvApplicationOptionString_GetLstSvNm"},
    {"CPROFILE", "kvApplicationOptionString_GetNmActPrfl"},
    {"SAVEFILE", "kvApplicationOptionString_GetNmAutoSvFl"},
    {"PRODUCT", "kvApplicationOptionString_GetNmPrdct"},
    {"PROGRAM", "kvApplicationOptionString_GetNmPrgm"},
    {"PLATFORM", "kvApplicationOptionString_GetPlatform"},
    {"ACADPREFIX", "kvApplicationOptionString_GetPthDS"},
    {"DWGPREFIX", "kvApplicationOptionString_GetPthDWG"},
    {"_PKSER", "kvApplicationOptionString_Lgcy_PKSER"},
    {"SHPNAME", "kvApplicationOptionString_LgcySHPNAME"},
    {"MENUNAME", "kvApplicationOptionString_SetActMnu"},
    {"FONTALT", "kvApplicationOptionString_SetAltFnt"},
    {"SAVEFILEPATH", "kvApplicationOptionString_SetAutoSvPth"},
    {"INETLOCATION", "kvApplicationOptionString_SetBrwsrUrl"},
    {"DCTMAIN", "kvApplicationOptionString_SetDictFNm"},
    {"FONTMAP", "kvApplicationOptionString_SetFntMpFNm"},
    {"LOGFILEPATH", "kvApplicationOptionString_SetLogPth"},
    {"POLARADDANG", "kvApplicationOptionString_SetPGdSpcAng"},
    {"CMDLNTEXT", "kvApplicationOptionString_SetPrmptTxt"},
    {"PSPROLOG", "kvApplicationOptionString_SetPSProLog"},
    {"TEMPPREFIX", "kvApplicationOptionString_SetPthTemp"},
    {"SHAPEALT", "kvApplicationOptionString_SetAltShp"},
    {"BIGFONTALT", "kvApplicationOptionString_SetAltBgFnt"},
};

constexpr OptionGroup applicationGroups[] = {
    {OptionKind::Bool, applicationBool},     {OptionKind::Int16, applicationInt16},
    {OptionKind::Int32, applicationInt32},   {OptionKind::Double, applicationDouble},
    {OptionKind::String, applicationString},
};

using OptionMap = QHash<QString, Option>;

OptionMap MapOf(std::span<const OptionGroup> groups)
{
    OptionMap map;
    for (const OptionGroup& group : groups)
    {
        for (const OptionRow& row : group.rows)
        {
            map.insert(QLatin1String(row.variable), Option{group.kind, QLatin1String(row.constant)});
        }
    }
    return map;
}

const Option* Find(const OptionMap& map, const QString& variable)
{
    const auto found = map.constFind(variable);
    return found == map.constEnd() ? nullptr : &*found;
}
} // namespace

std::span<const OptionGroup> CommandOptionGroups()
{
    return commandGroups;
}

std::span<const OptionGroup> ApplicationOptionGroups()
{
    return applicationGroups;
}

const Option* FindCommandOptionRow(const QString& variable)
{
    static const OptionMap map = MapOf(commandGroups);
    return Find(map, variable);
}

const Option* FindApplicationOptionRow(const QString& variable)
{
    static const OptionMap map = MapOf(applicationGroups);
    return Find(map, variable);
}
} // namespace kv
