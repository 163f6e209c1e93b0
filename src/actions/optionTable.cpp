// The system variables that the host's interface has options for.

#include "actions/optionTable.h"

#include <QHash>

#include <algorithm>
#include <array>

namespace inkmacro {

namespace {

/// The interface abbreviates the names of its options in a way that cannot be computed.
constexpr OptionRow named(const char* variable, OptionKind kind, const char* name)
{
    return {variable, kind, name, false};
}

constexpr OptionRow plain(const char* variable, OptionKind kind)
{
    return {variable, kind, nullptr, false};
}

constexpr OptionRow readOnly(const char* variable, OptionKind kind)
{
    return {variable, kind, nullptr, true};
}

constexpr std::array commandOptions{
    named("LIMCHECK", OptionKind::Bool, "EnblBnds"),
    named("QTEXTMODE", OptionKind::Bool, "EnblBoxTxt"),
    plain("UCSVP", OptionKind::Bool),
    plain("WORLDVIEW", OptionKind::Bool),
    plain("DIMALT", OptionKind::Bool),
    plain("DIMSAH", OptionKind::Bool),
    plain("DIMTOFL", OptionKind::Bool),
    plain("DIMSD1", OptionKind::Bool),
    plain("DIMSD2", OptionKind::Bool),
    plain("DIMSE1", OptionKind::Bool),
    plain("DIMSE2", OptionKind::Bool),
    plain("DIMSOXD", OptionKind::Bool),
    plain("DIMTOL", OptionKind::Bool),
    plain("DIMTOH", OptionKind::Bool),
    plain("DIMUPT", OptionKind::Bool),
    plain("DIMTIX", OptionKind::Bool),
    plain("FILLMODE", OptionKind::Bool),
    plain("GRIDMODE", OptionKind::Bool),
    plain("LWDISPLAY", OptionKind::Bool),
    plain("ORTHOMODE", OptionKind::Bool),
    plain("PLINEGEN", OptionKind::Bool),
    plain("PELLIPSE", OptionKind::Bool),
    plain("REGENMODE", OptionKind::Bool),
    plain("XEDIT", OptionKind::Bool),
    plain("DISPSILH", OptionKind::Bool),
    plain("SNAPMODE", OptionKind::Bool),
    plain("SNAPSTYL", OptionKind::Bool),
    plain("SPLFRAME", OptionKind::Bool),
    readOnly("PSTYLEMODE", OptionKind::Bool),
    plain("DIMLIM", OptionKind::Bool),
    plain("HIDETEXT", OptionKind::Bool),
    named("TILEMODE", OptionKind::Bool, "EnblVP"),
    plain("PSLTSCALE", OptionKind::Bool),
    readOnly("DWGTITLED", OptionKind::Bool),
    plain("DIMASO", OptionKind::Bool),
    plain("DIMSHO", OptionKind::Bool),
    named("EXTNAMES", OptionKind::Bool, "LgcyEXTNAMES"),
    plain("UCSFOLLOW", OptionKind::Bool),
    plain("VISRETAIN", OptionKind::Bool),
    plain("ANGDIR", OptionKind::Bool),
    plain("DIMTIH", OptionKind::Bool),
    named("OLESTARTUP", OptionKind::Bool, "SetFLXOLESTARTUP"),
    plain("SKPOLY", OptionKind::Bool),
    plain("MIRRTEXT", OptionKind::Bool),
    readOnly("AREA", OptionKind::Double),
    readOnly("PERIMETER", OptionKind::Double),
    readOnly("DISTANCE", OptionKind::Double),
    readOnly("TDCREATE", OptionKind::Double),
    readOnly("TDUPDATE", OptionKind::Double),
    readOnly("TDUUPDATE", OptionKind::Double),
    readOnly("LASTANGLE", OptionKind::Double),
    readOnly("TDINDWG", OptionKind::Double),
    readOnly("TDUSRTIMER", OptionKind::Double),
    readOnly("VIEWSIZE", OptionKind::Double),
    readOnly("BACKZ", OptionKind::Double),
    plain("FACETRES", OptionKind::Double),
    readOnly("FRONTZ", OptionKind::Double),
    readOnly("LENSLENGTH", OptionKind::Double),
    readOnly("VIEWTWIST", OptionKind::Double),
    plain("CELTSCALE", OptionKind::Double),
    plain("PDSIZE", OptionKind::Double),
    plain("THICKNESS", OptionKind::Double),
    plain("ANGBASE", OptionKind::Double),
    named("CHAMFERD", OptionKind::Double, "SetChmfAng"),
    named("CHAMFERA", OptionKind::Double, "SetChmfDst1"),
    named("CHAMFERB", OptionKind::Double, "SetChmfDst2"),
    named("CHAMFERC", OptionKind::Double, "SetChmfLen"),
    plain("CIRCLERAD", OptionKind::Double),
    plain("DIMALTF", OptionKind::Double),
    plain("DIMALTRND", OptionKind::Double),
    plain("DIMASZ", OptionKind::Double),
    plain("DIMDLE", OptionKind::Double),
    plain("DIMDLI", OptionKind::Double),
    plain("DIMEXE", OptionKind::Double),
    plain("DIMEXO", OptionKind::Double),
    plain("DIMTFAC", OptionKind::Double),
    plain("DIMSCALE", OptionKind::Double),
    plain("DIMTP", OptionKind::Double),
    plain("DIMTXT", OptionKind::Double),
    plain("DIMGAP", OptionKind::Double),
    plain("DIMTVP", OptionKind::Double),
    named("FILLETRAD", OptionKind::Double, "SetFltRad"),
    plain("LTSCALE", OptionKind::Double),
    plain("HPANG", OptionKind::Double),
    plain("HPSCALE", OptionKind::Double),
    plain("HPSPACE", OptionKind::Double),
    plain("DIMRND", OptionKind::Double),
    plain("DIMLFAC", OptionKind::Double),
    plain("CMLSCALE", OptionKind::Double),
    plain("OFFSETDIST", OptionKind::Double),
    plain("PLINEWID", OptionKind::Double),
    plain("DIMCEN", OptionKind::Double),
    plain("DIMTSZ", OptionKind::Double),
    plain("DONUTID", OptionKind::Double),
    plain("DONUTOD", OptionKind::Double),
    plain("SKETCHINC", OptionKind::Double),
    plain("SNAPANG", OptionKind::Double),
    plain("DIMTM", OptionKind::Double),
    plain("TRACEWID", OptionKind::Double),
    plain("TEXTSIZE", OptionKind::Double),
    plain("USERR1", OptionKind::Double),
    plain("USERR2", OptionKind::Double),
    plain("USERR3", OptionKind::Double),
    plain("USERR4", OptionKind::Double),
    plain("USERR5", OptionKind::Double),
    plain("PSVPSCALE", OptionKind::Double),
    plain("ELEVATION", OptionKind::Double),
    plain("DIMALTZ", OptionKind::Int8),
    named("DIMTOLJ", OptionKind::Int8, "SetDmTolVJst"),
    plain("DIMALTTZ", OptionKind::Int8),
    plain("DIMTZIN", OptionKind::Int8),
    named("CHAMMODE", OptionKind::Int16, "EnblChmfAng"),
    plain("XCLIPFRAME", OptionKind::Int16),
    plain("CMDECHO", OptionKind::Int16),
    plain("HPBOUND", OptionKind::Int16),
    plain("HPDOUBLE", OptionKind::Int16),
    plain("UNITMODE", OptionKind::Int16),
    plain("CVPORT", OptionKind::Int16),
    readOnly("ERRNO", OptionKind::Int16),
    readOnly("CMDACTIVE", OptionKind::Int16),
    readOnly("WORLDUCS", OptionKind::Int16),
    readOnly("UNDOCTL", OptionKind::Int16),
    readOnly("DIASTAT", OptionKind::Int16),
    readOnly("DBMOD", OptionKind::Int16),
    plain("DIMFIT", OptionKind::Int16),
    plain("DIMUNIT", OptionKind::Int16),
    readOnly("DWGCODEPAGE", OptionKind::Int16),
    plain("HALOGAP", OptionKind::Int16),
    readOnly("HANDLES", OptionKind::Int16),
    plain("INDEXCTL", OptionKind::Int16),
    plain("ISOLINES", OptionKind::Int16),
    plain("OBSCUREDCOLOR", OptionKind::Int16),
    plain("OBSCUREDLTYPE", OptionKind::Int16),
    plain("SHADEDGE", OptionKind::Int16),
    plain("SHADEDIF", OptionKind::Int16),
    plain("SORTENTS", OptionKind::Int16),
    readOnly("VIEWMODE", OptionKind::Int16),
    named("CECOLOR", OptionKind::Int16, "SetActLClr"),
    plain("CELWEIGHT", OptionKind::Int16),
    plain("PDMODE", OptionKind::Int16),
    plain("MAXACTVP", OptionKind::Int16),
    plain("DIMADEC", OptionKind::Int16),
    plain("DIMAUNIT", OptionKind::Int16),
    plain("DIMAZIN", OptionKind::Int16),
    plain("AUPREC", OptionKind::Int16),
    plain("AUNITS", OptionKind::Int16),
    plain("ATTMODE", OptionKind::Int16),
    plain("INSUNITS", OptionKind::Int16),
    plain("UCSICON", OptionKind::Int16),
    plain("DIMALTD", OptionKind::Int16),
    plain("DIMALTU", OptionKind::Int16),
    plain("DIMCLRD", OptionKind::Int16),
    plain("DIMLWD", OptionKind::Int16),
    plain("DIMCLRE", OptionKind::Int16),
    plain("DIMLWE", OptionKind::Int16),
    plain("DIMATFIT", OptionKind::Int16),
    plain("DIMASSOC", OptionKind::Int16),
    plain("DIMCLRT", OptionKind::Int16),
    plain("DIMJUST", OptionKind::Int16),
    plain("DIMTMOVE", OptionKind::Int16),
    plain("DIMTAD", OptionKind::Int16),
    plain("DIMZIN", OptionKind::Int16),
    named("PROXYGRAPHICS", OptionKind::Int16, "SetFLXPROXYGRAPHICS"),
    plain("SPLINETYPE", OptionKind::Int16),
    plain("HPDRAWORDER", OptionKind::Int16),
    plain("SNAPISOPAIR", OptionKind::Int16),
    plain("DIMDSEP", OptionKind::Int16),
    plain("DIMFRAC", OptionKind::Int16),
    plain("DIMDEC", OptionKind::Int16),
    plain("DIMLUNIT", OptionKind::Int16),
    plain("CMLJUST", OptionKind::Int16),
    plain("SURFTYPE", OptionKind::Int16),
    plain("SPLINESEGS", OptionKind::Int16),
    plain("BINDTYPE", OptionKind::Int16),
    plain("SURFU", OptionKind::Int16),
    plain("SURFTAB1", OptionKind::Int16),
    plain("SURFTAB2", OptionKind::Int16),
    plain("SURFV", OptionKind::Int16),
    plain("TSTACKSIZE", OptionKind::Int16),
    plain("TSTACKALIGN", OptionKind::Int16),
    plain("DIMALTTD", OptionKind::Int16),
    plain("DIMTDEC", OptionKind::Int16),
    plain("TEXTQLTY", OptionKind::Int16),
    plain("LUNITS", OptionKind::Int16),
    plain("LUPREC", OptionKind::Int16),
    plain("MEASUREMENT", OptionKind::Int16),
    plain("USERI1", OptionKind::Int16),
    plain("USERI2", OptionKind::Int16),
    plain("USERI3", OptionKind::Int16),
    plain("USERI4", OptionKind::Int16),
    plain("USERI5", OptionKind::Int16),
    readOnly("SCREENSIZE", OptionKind::Point2d),
    plain("LIMMIN", OptionKind::Point2d),
    plain("LIMMAX", OptionKind::Point2d),
    plain("GRIDUNIT", OptionKind::Point2d),
    plain("SNAPBASE", OptionKind::Point2d),
    plain("SNAPUNIT", OptionKind::Point2d),
    plain("LASTPOINT", OptionKind::Point3d),
    readOnly("UCSORG", OptionKind::Point3d),
    readOnly("VIEWCTR", OptionKind::Point3d),
    readOnly("UCSXDIR", OptionKind::Point3d),
    readOnly("EXTMAX", OptionKind::Point3d),
    readOnly("EXTMIN", OptionKind::Point3d),
    readOnly("UCSYDIR", OptionKind::Point3d),
    readOnly("TARGET", OptionKind::Point3d),
    readOnly("VIEWDIR", OptionKind::Point3d),
    readOnly("VSMAX", OptionKind::Point3d),
    readOnly("VSMIN", OptionKind::Point3d),
    plain("INSBASE", OptionKind::Point3d),
    readOnly("CMDNAMES", OptionKind::String),
    readOnly("REFEDITNAME", OptionKind::String),
    readOnly("DIMSTYLE", OptionKind::String),
    plain("CTAB", OptionKind::String),
    readOnly("LASTPROMPT", OptionKind::String),
    readOnly("UCSNAME", OptionKind::String),
    plain("CPLOTSTYLE", OptionKind::String),
    plain("USERS1", OptionKind::String),
    plain("USERS2", OptionKind::String),
    plain("USERS3", OptionKind::String),
    plain("USERS4", OptionKind::String),
    plain("USERS5", OptionKind::String),
    plain("CANNOSCALE", OptionKind::String),
    plain("PROJECTNAME", OptionKind::String),
    plain("INSNAME", OptionKind::String),
    plain("CLAYER", OptionKind::String),
    plain("CELTYPE", OptionKind::String),
    plain("CTABLESTYLE", OptionKind::String),
    plain("TEXTSTYLE", OptionKind::String),
    plain("UCSBASE", OptionKind::String),
    plain("DIMBLK", OptionKind::String),
    plain("DIMBLK1", OptionKind::String),
    plain("DIMBLK2", OptionKind::String),
    plain("DIMLDRBLK", OptionKind::String),
    plain("DIMTXSTY", OptionKind::String),
    readOnly("LOGFILENAME", OptionKind::String),
    plain("HPNAME", OptionKind::String),
    plain("HYPERLINKBASE", OptionKind::String),
    plain("DIMPOST", OptionKind::String),
    plain("CMLSTYLE", OptionKind::String),
    plain("PUCSBASE", OptionKind::String),
    plain("DIMAPOST", OptionKind::String),
};

constexpr std::array applicationOptions{
    named("ATTDIA", OptionKind::Bool, "EnblBAttDlgs"),
    plain("ATTREQ", OptionKind::Bool),
    plain("RASTERPREVIEW", OptionKind::Bool),
    named("PICKFIRST", OptionKind::Bool, "EnblEntSelPreSel"),
    plain("APBOX", OptionKind::Bool),
    plain("IMAGEHLT", OptionKind::Bool),
    plain("FILEDIA", OptionKind::Bool),
    plain("PROXYNOTICE", OptionKind::Bool),
    plain("DELOBJ", OptionKind::Bool),
    plain("RTDISPLAY", OptionKind::Bool),
    plain("TEXTFILL", OptionKind::Bool),
    readOnly("CDATE", OptionKind::Double),
    readOnly("DATE", OptionKind::Double),
    plain("POLARANG", OptionKind::Double),
    plain("POLARDIST", OptionKind::Double),
    plain("EXPLMODE", OptionKind::Int16),
    named("CHAMMODE", OptionKind::Int16, "EnblChmfAng"),
    plain("CMDDIA", OptionKind::Int16),
    plain("DRAGMODE", OptionKind::Int16),
    named("EDGEMODE", OptionKind::Int16, "EnblEdgeExtd"),
    plain("GRIPBLOCK", OptionKind::Int16),
    plain("GRIPTIPS", OptionKind::Int16),
    plain("HIGHLIGHT", OptionKind::Int16),
    plain("TRACKPATH", OptionKind::Int16),
    named("TRIMMODE", OptionKind::Int16, "EnblFltTrm"),
    plain("MBUTTONPAN", OptionKind::Int16),
    plain("NOMUTT", OptionKind::Int16),
    plain("PEDITACCEPT", OptionKind::Int16),
    plain("SNAPTYPE", OptionKind::Int16),
    plain("TOOLTIPS", OptionKind::Int16),
    readOnly("SYSCODEPAGE", OptionKind::Int16),
    readOnly("SCREENMODE", OptionKind::Int16),
    plain("ACISOUTVER", OptionKind::Int16),
    plain("STARTUP", OptionKind::Int16),
    plain("WMFBKGND", OptionKind::Int16),
    plain("WMFFOREGND", OptionKind::Int16),
    plain("INSUNITSDEFSOURCE", OptionKind::Int16),
    plain("AFLAGS", OptionKind::Int16),
    plain("UCSAXISANG", OptionKind::Int16),
    plain("XFADECTL", OptionKind::Int16),
    plain("COORDS", OptionKind::Int16),
    plain("LWDEFAULT", OptionKind::Int16),
    plain("GRIPHOT", OptionKind::Int16),
    plain("GRIPOBJLIMIT", OptionKind::Int16),
    plain("GRIPS", OptionKind::Int16),
    plain("GRIPCOLOR", OptionKind::Int16),
    plain("PICKSTYLE", OptionKind::Int16),
    plain("OSMODE", OptionKind::Int16),
    plain("APERTURE", OptionKind::Int16),
    plain("HPASSOC", OptionKind::Int16),
    plain("LOGFILEMODE", OptionKind::Int16),
    plain("LWUNITS", OptionKind::Int16),
    plain("MENUECHO", OptionKind::Int16),
    plain("OFFSETGAPTYPE", OptionKind::Int16),
    plain("OLEQUALITY", OptionKind::Int16),
    plain("POLYSIDES", OptionKind::Int16),
    plain("CURSORSIZE", OptionKind::Int16),
    plain("PLOTROTMODE", OptionKind::Int16),
    plain("PROJMODE", OptionKind::Int16),
    plain("PROXYSHOW", OptionKind::Int16),
    plain("PICKBOX", OptionKind::Int16),
    plain("SHORTCUTMENU", OptionKind::Int16),
    plain("PICKDRAG", OptionKind::Int32),
    plain("PICKAUTO", OptionKind::Int32),
    plain("EXPERT", OptionKind::Int32),
    plain("OSNAPCOORD", OptionKind::Int32),
    plain("PICKADD", OptionKind::Int32),
    named("SAVETIME", OptionKind::Int32, "SetSvTm"),
    plain("DCTCUST", OptionKind::String),
    readOnly("LOGINNAME", OptionKind::String),
    readOnly("LOCALE", OptionKind::String),
    readOnly("SAVENAME", OptionKind::String),
    readOnly("CPROFILE", OptionKind::String),
    readOnly("SAVEFILE", OptionKind::String),
    readOnly("PRODUCT", OptionKind::String),
    readOnly("PROGRAM", OptionKind::String),
    readOnly("PLATFORM", OptionKind::String),
    readOnly("ACADPREFIX", OptionKind::String),
    readOnly("DWGPREFIX", OptionKind::String),
    plain("SHPNAME", OptionKind::String),
    readOnly("MENUNAME", OptionKind::String),
    plain("FONTALT", OptionKind::String),
    plain("SAVEFILEPATH", OptionKind::String),
    plain("INETLOCATION", OptionKind::String),
    plain("DCTMAIN", OptionKind::String),
    plain("FONTMAP", OptionKind::String),
    plain("LOGFILEPATH", OptionKind::String),
    plain("POLARADDANG", OptionKind::String),
    plain("CMDLNTEXT", OptionKind::String),
    plain("PSPROLOG", OptionKind::String),
    readOnly("TEMPPREFIX", OptionKind::String),
    plain("SHAPEALT", OptionKind::String),
    named("BIGFONTALT", OptionKind::String, "SetAltBgFnt"),
};

template<std::size_t size>
constexpr bool hasCounts(const std::array<OptionRow, size>& rows, const std::array<int, optionKindCount>& expected)
{
    std::array<int, optionKindCount> counts{};
    for (const OptionRow& row : rows)
        ++counts[static_cast<std::size_t>(row.kind)];
    return counts == expected;
}

// Bool, Double, Int8, Int16, Int32, Point2d, Point3d, String.
static_assert(hasCounts(commandOptions, {44, 63, 4, 80, 0, 6, 12, 32}));
static_assert(hasCounts(applicationOptions, {11, 4, 0, 47, 6, 0, 0, 25}));

using Index = QHash<QString, const OptionRow*>;

Index indexed(std::span<const OptionRow> rows)
{
    Index index;
    for (const OptionRow& row : rows)
        index.insert(QLatin1String(row.variable), &row);
    return index;
}

const char* verb(const OptionRow& row)
{
    if (row.kind == OptionKind::Bool)
        return "Enbl";
    return row.readOnly ? "Get" : "Set";
}

} // namespace

std::span<const OptionRow> OptionRows(OptionOwner owner)
{
    if (owner == OptionOwner::Document)
        return commandOptions;
    return applicationOptions;
}

const OptionRow* FindOption(OptionOwner owner, const QString& variable)
{
    static const Index document = indexed(commandOptions);
    static const Index application = indexed(applicationOptions);
    return (owner == OptionOwner::Document ? document : application).value(variable);
}

const char* OptionTypeName(OptionKind kind)
{
    static constexpr std::array<const char*, optionKindCount> names{"Bool",  "Double",  "Int8",    "Int16",
                                                                    "Int32", "Point2d", "Point3d", "String"};
    return names[static_cast<std::size_t>(kind)];
}

QString EnumeratorStem(OptionOwner owner, OptionKind kind)
{
    return QLatin1String(owner == OptionOwner::Document ? "iwCommandOption" : "iwApplicationOption") +
           QLatin1String(OptionTypeName(kind)) + '_';
}

QString OptionEnumerator(OptionOwner owner, const OptionRow& row)
{
    const QString stem = EnumeratorStem(owner, row.kind);
    if (row.name)
        return stem + QLatin1String(row.name);
    return stem + QLatin1String(verb(row)) + QLatin1String(row.variable);
}

} // namespace inkmacro
