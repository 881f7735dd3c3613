#pragma once

#include <stdexcept>
#include <string_view>

/// The one table of the general settings: what there is, its default, and whether the viewer acts on it.
namespace SettingsTable {

enum class Effect {
  Acts, ///< the viewer acts on it, through a constant of base/settings.h
  Kept  ///< the viewer keeps it for the tools that work on the same workspaces
};

struct Row {
  const char *key;
  const char *value;
  const char *type; ///< "bool" (value "1" or "0"), "string" or "list"
  const char *category;
  const char *options; ///< of a "list", joined by ","
  Effect effect;
};

constexpr Effect Acts = Effect::Acts;
constexpr Effect Kept = Effect::Kept;

inline constexpr Row Rows[] = {
    {"start with last scenario", "off", "list", "general", "on,off", Acts},
    {"appearance", "like the desktop", "list", "general", "like the desktop,light,dark", Acts},
    {"auto-save PE and CHAR widget list", "on", "list", "general", "on,off", Acts},
    {"use comma", "1", "bool", "general", "", Acts},
    {"language", "desktop", "list", "general", "desktop,en,de", Acts},
    {"zoom to element", "0", "bool", "zooming", "", Acts},
    {"perform pixtest", "1", "bool", "zooming", "", Acts},
    {"pixtest delay", "100", "string", "zooming", "", Acts},
    {"smooth zoom", "1", "bool", "zooming", "", Acts},
    {"smooth zoom pixtest delay", "200", "string", "zooming", "", Acts},
    {"smooth zoom duration", "150", "string", "zooming", "", Acts},
    {"smooth zoom steps", "10", "string", "zooming", "", Acts},
    {"perform pixtest on click", "0", "bool", "zooming", "", Acts},
    {"build labels", "on", "list", "general", "on,off", Acts},
    {"build symbols", "on", "list", "general", "on,off", Acts},
    {"perform label placement", "proximity", "list", "zooming", "always,proximity,wait,never", Acts},
    {"perform label placement ratio", "0.4", "string", "zooming", "", Acts},
    {"perform label placement msec", "3000", "string", "zooming", "", Acts},
    {"zoom to element: factor", "4.0", "string", "zooming", "", Acts},
    {"tiny conversion tolerance", "1e-10", "string", "general", "", Acts},
    {"element selection brush color", "#D0A9F5", "string", "selection", "", Acts},
    {"element selection brush alpha", "127", "string", "selection", "", Acts},
    {"element selection brush style", "3", "list", "selection", "0,1,2,3,4,5,6,7", Acts},
    {"element selection pen color", "red", "string", "selection", "", Acts},
    {"element selection pen alpha", "127", "string", "selection", "", Acts},
    {"subnet deselection to its nodes", "off", "list", "selection", "on,off", Acts},
    {"subnet selection brush color", "#58ACFA", "string", "selection", "", Acts},
    {"subnet selection brush alpha", "127", "string", "selection", "", Acts},
    {"subnet selection brush style", "5", "list", "selection", "0,1,2,3,4,5,6,7", Acts},
    {"subnet selection pen color", "red", "string", "selection", "", Acts},
    {"subnet selection pen alpha", "127", "string", "selection", "", Acts},
    {"subnet selection size factor", "0.8", "string", "selection", "", Acts},
    {"show subnet ring colors", "BV status", "list", "subnets", "BV status,SP/SM control,search results,off", Acts},
    {"subnet background z", "1000.0", "string", "subnets", "", Acts},
    {"subnet background size", "15", "string", "subnets", "", Acts},
    {"subnet pen width", "3.0", "string", "subnets", "", Acts},
    {"subnet ring color BV major", "#FF00FF", "string", "subnets", "", Acts},
    {"subnet ring color BV minor", "#B45F04", "string", "subnets", "", Acts},
    {"subnet ring color no BV", "#088A08", "string", "subnets", "", Acts},
    {"subnet ring color BV unknown", "#A4A4A4", "string", "subnets", "", Acts},
    {"subnet ring color search result", "#FF0000", "string", "subnets", "", Acts},
    {"subnet color flow control", "yellow", "string", "subnets", "", Acts},
    {"subnet color pressure control", "#FA7501", "string", "subnets", "", Acts},
    {"subnet color maybe in control", "#65DF9E", "string", "subnets", "", Acts},
    {"subnet color bypass", "blue", "string", "subnets", "", Acts},
    {"subnet color unknown", "#A4A4A4", "string", "subnets", "", Acts},
    {"subnet color off", "red", "string", "subnets", "", Acts},
    {"draw subassembly pin lines", "on", "list", "subnets", "on,off", Acts},
    {"subassembly size", "take vis.size", "list", "subnets", "take vis.size,width,vis.size and width,fixed", Acts},
    {"UserKey_RectZoom", "16777248", "string", "mouse and keys", "", Acts},
    {"MousePattern_Panning", "Left_Ctrl", "list", "mouse and keys", "Left_Ctrl,MidButton,RightButton", Acts},
    {"SelectionModifiers", "DirectSelect", "list", "mouse and keys", "DirectSelect,ShiftSelect", Acts},
    {"PELKA mode", "off", "list", "special", "on,off", Acts},
    {"status bar style sheet failed", "background: #F7BE81", "string", "status bar", "", Acts},
    {"status bar style sheet stopped", "background: #F9ECAD", "string", "status bar", "", Acts},
    {"status bar style sheet acceptable", "background: lightBlue", "string", "status bar", "", Acts},
    {"status bar style sheet successful", "background: lightGreen", "string", "status bar", "", Acts},
    {"ask for include lists", "0", "bool", "general", "", Acts},
    {"pick on Release", "0", "bool", "mouse and keys", "", Acts},
    // The unit in which each quantity is read, empty for that of the property table, and how numbers are written.
    {"unit: pressure", "", "list", "units and numbers", ",bar,barg,mbar,kPa,MPa,psi,psig", Acts},
    {"unit: pressure difference", "", "list", "units and numbers", ",bar,mbar,Pa,kPa,MPa,psi", Acts},
    {"unit: norm volume flow", "", "list", "units and numbers", ",1000 m3/h,m3/h,m3/s,1000000 m3/d", Acts},
    {"unit: mass flow", "", "list", "units and numbers", ",kg/s,kg/h,t/h,lb/s", Acts},
    {"unit: energy flow", "", "list", "units and numbers", ",MW,kW,GW,GJ/h,GWh/d", Acts},
    {"unit: power", "", "list", "units and numbers", ",MW,kW,W", Acts},
    {"unit: temperature", "", "list", "units and numbers", ",degC,K,degF", Acts},
    {"unit: temperature difference", "", "list", "units and numbers", ",K,degC,degF", Acts},
    {"unit: length", "", "list", "units and numbers", ",km,m,mile,ft", Acts},
    {"unit: height", "", "list", "units and numbers", ",m,km,ft", Acts},
    {"unit: diameter", "", "list", "units and numbers", ",mm,cm,m,inch", Acts},
    {"unit: wall and roughness", "", "list", "units and numbers", ",mm,um,inch", Acts},
    {"unit: velocity", "", "list", "units and numbers", ",m/s,km/h,ft/s", Acts},
    {"unit: volume flow in the machine", "", "list", "units and numbers", ",m3/s,m3/h,m3/min,ft3/min", Acts},
    {"unit: head", "", "list", "units and numbers", ",kJ/kg,J/kg,kWh/t,m of head", Acts},
    {"unit: speed", "", "list", "units and numbers", ",1/min,1/s", Acts},
    {"unit: density", "", "list", "units and numbers", ",kg/m3,g/l,lb/ft3", Acts},
    {"unit: calorific value", "", "list", "units and numbers", ",kWh/m3,MJ/m3,kJ/m3,BTU/ft3", Acts},
    {"unit: gas volume", "", "list", "units and numbers", ",1000 m3,m3,1000000 m3", Acts},
    {"number form on screen", "significant digits", "list", "units and numbers", "significant digits,decimals", Acts},
    {"number digits on screen", "6", "string", "units and numbers", "", Acts},
    {"number digits in labels", "4", "string", "units and numbers", "", Acts},
    {"decimal sign on screen", "point", "list", "units and numbers", "point,comma", Acts},
    {"thousands on screen", "labels only", "list", "units and numbers", "labels only,none,space,apostrophe,other sign",
     Acts},
    {"number digits in files", "0", "string", "units and numbers", "", Acts},
    {"thousands in files", "none", "list", "units and numbers", "none,space,apostrophe,other sign", Acts},
    // The check of the network: how bad it is to break a rule, and where the thresholds lie.
    {"rule: node-balance", "warning", "list", "network check", "warning,information,off", Acts},
    {"rule: nomination-balance", "warning", "list", "network check", "warning,information,off", Acts},
    {"rule: nomination-contract", "warning", "list", "network check", "warning,information,off", Acts},
    {"rule: nomination-bounds", "warning", "list", "network check", "warning,information,off", Acts},
    {"rule: nomination-capacity", "warning", "list", "network check", "warning,information,off", Acts},
    {"rule: set-pressure", "warning", "list", "network check", "warning,information,off", Acts},
    {"rule: crossed-bounds", "warning", "list", "network check", "warning,information,off", Acts},
    {"rule: cut-off", "warning", "list", "network check", "warning,information,off", Acts},
    {"rule: no-pressure-set-point", "warning", "list", "network check", "warning,information,off", Acts},
    {"rule: duplicate-pipes", "information", "list", "network check", "warning,information,off", Acts},
    {"rule: zero-length", "warning", "list", "network check", "warning,information,off", Acts},
    {"rule: height-jump", "warning", "list", "network check", "warning,information,off", Acts},
    {"rule: same-position", "information", "list", "network check", "warning,information,off", Acts},
    {"rule: tolerance of balances", "0.1", "string", "network check", "", Acts},
    {"rule: steepest pipe", "300", "string", "network check", "", Acts},
    {"rule: highest step in a station", "30", "string", "network check", "", Acts},
    {"rule: nodes at one point", "10", "string", "network check", "", Acts},
    // Kept for the tools that prepare networks on the same workspaces: the viewer's own check adds no properties, knows no
    // subnets and asks for no property by its name; subnets are always updated in one way and their windows place labels
    // whatever is seen of them; every bound that is violated is told, searched and shown by the rings of subnets.
    {"subnet update routine", "build version", "list", "subnets", "old version,new version,build version", Kept},
    {"check net and add missing properties", "off", "list", "general", "after reading,off", Kept},
    {"ignore subnets while checking net", "on", "list", "general", "on,off", Kept},
    {"properties to be ignored while checking net", "^sm|^sp", "string", "general", "", Kept},
    {"perform subnet label placement ratio", "0.05", "string", "subnets", "", Kept},
    {"show major BVs in net", "search only", "list", "report", "search and visualize,search only,no", Kept},
    {"show minor BVs", "summary only", "list", "report", "true,summary only", Kept},
    // What the solving tools and reports on the same workspaces use; the viewer keeps it.
    {"overwrite atan_fact", "", "string", "special", "", Kept},
    {"QP: enforce POWSET bounds at supplies", "off", "list", "special", "on,on if needed,guess,off", Kept},
    {"QP: mset tolerance (init)", "1000", "string", "special", "", Kept},
    {"QP: mset tolerance (advanced)", "50", "string", "special", "", Kept},
    {"regularization eps2", "0", "string", "special", "", Kept},
    {"regularization eps2 score", "1e-5", "string", "special", "", Kept},
    {"erase tset at special supplies", "", "string", "special", "", Kept},
    {"use_reg_mmax", "", "string", "special", "", Kept},
    {"pseudo-timestep value", "1e5", "string", "special", "", Kept},
    {"start optimization after", "initialization", "string", "special", "", Kept},
    {"after optimize step", "mix", "string", "special", "", Kept},
    {"extra initialization steps", "1", "string", "special", "", Kept},
    {"conv problems in init", "goto check", "string", "special", "", Kept},
    {"extra free compressor steps", "1", "string", "special", "", Kept},
    {"conv problems in free", "goto check", "string", "special", "", Kept},
    {"conv problems in advanced", "goto check", "string", "special", "", Kept},
    {"advanced phase", "standard", "string", "special", "", Kept},
    {"keep old utrans output folders", "", "string", "special", "", Kept},
    {"aggregate over shortcuts", "", "string", "special", "", Kept},
    {"redistribute over shortcuts", "", "string", "special", "", Kept},
    {"save results of sub-elements", "", "string", "special", "", Kept},
    {"load results of sub-elements", "", "string", "special", "", Kept},
    {"molar gas constant", "8.3144621", "string", "special", "", Kept},
    {"norm pressure", "1.01325", "string", "special", "", Kept},
    {"norm temperature", "273.15", "string", "special", "", Kept},
    {"use gas law correction", "DC92", "list", "special", "DC92,GERG2008", Kept},
    {"enforce gas law correction", "", "string", "special", "", Kept},
    {"basic_gases file", "basic_gases_def.csv", "string", "special", "", Kept},
    {"HTML h1", "", "string", "report", "", Kept},
    {"HTML h2", "", "string", "report", "", Kept},
    {"HTML h3", "", "string", "report", "", Kept},
    {"HTML p", "", "string", "report", "", Kept},
    {"HTML table", "", "string", "report", "", Kept},
    {"visualize plots", "P,Q,T,CV", "string", "report", "", Kept},
    {"visualize diff-plots", "diff_P,diff_Q,diff_T,diff_CV", "string", "report", "", Kept},
    {"status bar progressbar for solver", "", "string", "status bar", "", Kept},
    {"exclude files from archive", "*.zip", "string", "general", "", Kept},
    {"unzip created archive after copy", "", "string", "general", "", Kept},
    {"remove created archive after copy", "", "string", "general", "", Kept},
    {"scan for ensemble scenarios", "", "string", "general", "", Kept},
    {"prefix for variants", "", "list", "general", ",var", Kept},
    {"variant mode", "", "string", "general", "", Kept},
    {"correct height differences", "", "string", "special", "", Kept},
    {"strategy for stalled regulators (analyze)", "", "string", "special", "", Kept},
    {"change states of stalled regulators", "", "string", "special", "", Kept},
    {"change states of stalled compressors", "", "string", "special", "", Kept},
    {"change states of stalled regulators after", "", "string", "special", "", Kept},
    {"overwrite REG_PAR_stalled tol.", "", "string", "special", "", Kept},
    {"check states of stalled reg. tol.", "", "string", "special", "", Kept},
    {"change states of stalled reg. tol. pdiff", "", "string", "special", "", Kept},
    {"change states of stalled reg. tol. simple", "", "string", "special", "", Kept},
    {"change states of stalled reg. tol.", "", "string", "special", "", Kept},
    {"change states of stalled reg. neg. tol.", "", "string", "special", "", Kept},
    {"mmax: lower bound for c,r", "-1e4", "string", "special", "", Kept},
    {"WT correction", "restore", "string", "special", "", Kept},
    {"WT correction Tmin [C]", "-10", "string", "special", "", Kept},
    {"WT correction Wmin", "7500", "string", "special", "", Kept},
    {"WT correction Tmax [C]", "", "string", "special", "", Kept},
    {"WT correction Wmax", "10500", "string", "special", "", Kept},
    {"change source values", "", "string", "special", "", Kept},
    {"allow touching non-preset props", "", "string", "special", "", Kept},
    {"allow touching extra props", "", "string", "special", "", Kept},
    {"prefix for REST actions", "", "string", "special", "", Kept},
    {"POST needs LOCK of scenario", "", "string", "special", "", Kept},
    {"unlock all with scenario", "", "string", "special", "", Kept},
    {"get all variants", "manually", "string", "special", "", Kept},
    {"notify waiting for lock or unlock", "", "string", "special", "", Kept},
};

/// What a number may be, for whoever edits it.
struct NumberBounds {
  const char *key;
  double minimum;
  double maximum;
  bool isWhole;
  const char *unit; ///< behind the number, empty for none
};

inline constexpr NumberBounds Numbers[] = {
    {"pixtest delay", 0, 60000, true, "ms"},
    {"smooth zoom pixtest delay", 0, 60000, true, "ms"},
    {"smooth zoom duration", 1, 60000, true, "ms"},
    {"smooth zoom steps", 1, 1000, true, ""},
    {"perform label placement ratio", 0, 1, false, ""},
    {"perform label placement msec", 0, 600000, true, "ms"},
    {"zoom to element: factor", 1, 1000, false, ""},
    {"tiny conversion tolerance", 0, 1, false, ""},
    {"element selection brush alpha", 0, 255, true, ""},
    {"element selection pen alpha", 0, 255, true, ""},
    {"subnet selection brush alpha", 0, 255, true, ""},
    {"subnet selection pen alpha", 0, 255, true, ""},
    {"subnet selection size factor", 0, 10, false, ""},
    {"subnet background z", -1e6, 1e6, false, ""},
    {"subnet background size", 0, 200, false, "px"},
    {"subnet pen width", 0, 50, false, "px"},
    {"perform subnet label placement ratio", 0, 1, false, ""},
    {"number digits on screen", 1, 15, true, ""},
    {"number digits in labels", 1, 15, true, ""},
    {"number digits in files", 0, 17, true, ""},
    {"rule: tolerance of balances", 0, 100, false, "%"},
    {"rule: steepest pipe", 1, 1e6, false, "m/km"},
    {"rule: highest step in a station", 0, 10000, false, "m"},
    {"rule: nodes at one point", 2, 1000000, true, ""},
};

/// Null for a setting that is no number, or may be any.
constexpr const NumberBounds *numberBounds(std::string_view key) {
  for (const NumberBounds &bounds : Numbers) {
    if (key == bounds.key)
      return &bounds;
  }
  return nullptr;
}

/// Throws for a key that the table does not know, which while compiling is an error.
constexpr const Row &row(std::string_view key) {
  for (const Row &row : Rows) {
    if (key == row.key)
      return row;
  }
  throw std::invalid_argument("there is no such setting");
}

} // namespace SettingsTable
