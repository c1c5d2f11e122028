// The scenario step "call OP [ARG ...]": any interface operation by its name, with its result as text.
#include "InterfaceCalls.h"

#include <cstdlib>
#include <functional>
#include <map>

#include "BaseLib.h"

namespace {
using Args = std::vector<std::string>;

struct Operation {
    std::size_t nArgs;
    std::function<std::optional<std::string>(IFlashSimulator&, const Args&)> run;
};

long long Num(const std::string& s) {
    return std::strtoll(s.c_str(), nullptr, 0);
}
std::int32_t I(const std::string& s) {
    return static_cast<std::int32_t>(Num(s));
}
bool B(const std::string& s) {
    return s == "true" || (s != "false" && Num(s) != 0);
}
std::string Text(bool b) {
    return b ? "1" : "0";
}
std::string Text(long long v) {
    return std::to_string(v);
}
std::string Text(const char* s) {
    return s ? s : "(null)";
}

// Stores an int setter/getter pair in the table.
void IntPair(std::map<std::string, Operation>& ops, const char* set,
             void (IFlashSimulator::*setter)(std::int32_t), const char* get,
             std::int32_t (IFlashSimulator::*getter)()) {
    ops[set] = {1, [setter](IFlashSimulator& s, const Args& a) {
                    (s.*setter)(I(a[0]));
                    return std::optional<std::string>();
                }};
    ops[get] = {0, [getter](IFlashSimulator& s, const Args&) {
                    return std::optional(Text(static_cast<long long>((s.*getter)())));
                }};
}

void BoolSetter(std::map<std::string, Operation>& ops, const char* name,
                void (IFlashSimulator::*setter)(bool)) {
    ops[name] = {1, [setter](IFlashSimulator& s, const Args& a) {
                     (s.*setter)(B(a[0]));
                     return std::optional<std::string>();
                 }};
}

void BoolGetter(std::map<std::string, Operation>& ops, const char* name, bool (IFlashSimulator::*getter)()) {
    ops[name] = {0, [getter](IFlashSimulator& s, const Args&) {
                     return std::optional(Text(static_cast<long long>((s.*getter)())));
                 }};
}

void Action(std::map<std::string, Operation>& ops, const char* name, void (IFlashSimulator::*action)()) {
    ops[name] = {0, [action](IFlashSimulator& s, const Args&) {
                     (s.*action)();
                     return std::optional<std::string>();
                 }};
}

std::map<std::string, Operation> BuildTable() {
    std::map<std::string, Operation> ops;
    using R = std::optional<std::string>;
    ops["SetVariable"] = {2, [](IFlashSimulator& s, const Args& a) {
                              s.SetVariable(a[0].c_str(), a[1].c_str());
                              return R();
                          }};
    ops["GetVariable"] = {
        1, [](IFlashSimulator& s, const Args& a) { return R(Text(s.GetVariable(a[0].c_str()))); }};
    ops["ShowMessage"] = {1, [](IFlashSimulator& s, const Args& a) {
                              s.ShowMessage(static_cast<std::uint32_t>(Num(a[0])));
                              return R();
                          }};
    Action(ops, "Process", &IFlashSimulator::Process);
    Action(ops, "Show", &IFlashSimulator::Show);
    ops["WindowProc"] = {3, [](IFlashSimulator& s, const Args& a) {
                             return R(Text(static_cast<long long>(s.WindowProc(
                                 nullptr, static_cast<UINT>(Num(a[0])), static_cast<WPARAM>(Num(a[1])),
                                 static_cast<LPARAM>(Num(a[2]))))));
                         }};
    ops["PreTranslateMessage"] = {3, [](IFlashSimulator& s, const Args& a) {
                                      MSG msg{nullptr,
                                              static_cast<UINT>(Num(a[0])),
                                              static_cast<WPARAM>(Num(a[1])),
                                              static_cast<LPARAM>(Num(a[2])),
                                              0,
                                              {0, 0}};
                                      return R(Text(static_cast<long long>(s.PreTranslateMessage(&msg))));
                                  }};
    BoolGetter(ops, "IsWebRegisterVisible", &IFlashSimulator::IsWebRegisterVisible);
    ops["SetSceneType"] = {1, [](IFlashSimulator& s, const Args& a) {
                               s.SetSceneType(I(a[0]));
                               return R();
                           }};
    ops["GetStr"] = {1, [](IFlashSimulator& s, const Args& a) {
                         return R(Text(s.GetStr(static_cast<std::uint32_t>(Num(a[0])))));
                     }};
    ops["GetStrInt"] = {
        1, [](IFlashSimulator& s, const Args& a) {
            return R(Text(static_cast<long long>(s.GetStrInt(static_cast<std::uint32_t>(Num(a[0]))))));
        }};
    ops["SetCreateRoleParam"] = {8, [](IFlashSimulator& s, const Args& a) {
                                     s.SetCreateRoleParam(I(a[0]), I(a[1]), I(a[2]), I(a[3]), I(a[4]),
                                                          B(a[5]), I(a[6]), I(a[7]));
                                     return R();
                                 }};
    BoolSetter(ops, "SetClassicTokenOnly", &IFlashSimulator::SetClassicTokenOnly);
    BoolSetter(ops, "SetPlatformModeA", &IFlashSimulator::SetPlatformModeA);
    BoolSetter(ops, "SetPlatformModeB", &IFlashSimulator::SetPlatformModeB);
    BoolGetter(ops, "IsPlatformModeA", &IFlashSimulator::IsPlatformModeA);
    BoolGetter(ops, "IsNameChecked", &IFlashSimulator::IsNameChecked);
    BoolGetter(ops, "IsRoleReady", &IFlashSimulator::IsRoleReady);
    ops["SetNameCheck"] = {3, [](IFlashSimulator& s, const Args& a) {
                               s.SetNameCheck(B(a[0]), B(a[1]), B(a[2]));
                               return R();
                           }};
    IntPair(ops, "SetProfession", &IFlashSimulator::SetProfession, "GetProfession",
            &IFlashSimulator::GetProfession);
    IntPair(ops, "SetModelFace", &IFlashSimulator::SetModelFace, "GetModelFace",
            &IFlashSimulator::GetModelFace);
    IntPair(ops, "SetLookParity", &IFlashSimulator::SetLookParity, "GetLookParity",
            &IFlashSimulator::GetLookParity);
    IntPair(ops, "SetBaseInfoIndex", &IFlashSimulator::SetBaseInfoIndex, "GetBaseInfoIndex",
            &IFlashSimulator::GetBaseInfoIndex);
    IntPair(ops, "SetLoginOption", &IFlashSimulator::SetLoginOption, "GetLoginOption",
            &IFlashSimulator::GetLoginOption);
    IntPair(ops, "SetPlayerListArg", &IFlashSimulator::SetPlayerListArg, "GetPlayerListArg",
            &IFlashSimulator::GetPlayerListArg);
    ops["SetNameSuggest"] = {
        1, [](IFlashSimulator& s, const Args& a) { return R(Text(s.SetNameSuggest(I(a[0])))); }};
    BoolGetter(ops, "GetNameSuggest", &IFlashSimulator::GetNameSuggest);
    Action(ops, "FocusAccountField", &IFlashSimulator::FocusAccountField);
    ops["SetRandomName"] = {1, [](IFlashSimulator& s, const Args& a) {
                                s.SetRandomName(a[0].c_str(), static_cast<std::int32_t>(a[0].size()));
                                return R();
                            }};
    BoolGetter(ops, "IsNameUnchanged", &IFlashSimulator::IsNameUnchanged);
    ops["StartPlayerListThread"] = {0, [](IFlashSimulator& s, const Args&) {
                                        // The host waits for the worker so that the transcript stays in
                                        // order.
                                        HANDLE h = s.StartPlayerListThread();
                                        if (!h) return R("(null)");
                                        WaitForSingleObject(h, INFINITE);
                                        CloseHandle(h);
                                        return R("handle");
                                    }};
    ops["GetSelection"] = {0, [](IFlashSimulator& s, const Args&) {
                               std::int32_t first = 0, second = 0;
                               const bool set = s.GetSelection(&first, &second);
                               return R(Text(set) + " " + Text(static_cast<long long>(first)) + " " +
                                        Text(static_cast<long long>(second)));
                           }};
    ops["SetSelection"] = {3, [](IFlashSimulator& s, const Args& a) {
                               s.SetSelection(B(a[0]), I(a[1]), I(a[2]));
                               return R();
                           }};
    Action(ops, "ShowSwitchLanguage", &IFlashSimulator::ShowSwitchLanguage);
    Action(ops, "ReloadStrings", &IFlashSimulator::ReloadStrings);
    Action(ops, "RegisterRangedStrings", &IFlashSimulator::RegisterRangedStrings);
    ops["ManagerCall"] = {3, [](IFlashSimulator& s, const Args& a) {
                              s.ManagerCall(static_cast<UINT>(Num(a[0])), static_cast<WPARAM>(Num(a[1])),
                                            static_cast<LPARAM>(Num(a[2])));
                              return R();
                          }};
    Action(ops, "RegisterRole", &IFlashSimulator::RegisterRole);
    ops["SetCallBack"] = {1, [](IFlashSimulator& s, const Args&) {
                              s.SetCallBack(nullptr);
                              return R();
                          }};
    ops["SetCallBackEx"] = {1, [](IFlashSimulator& s, const Args&) {
                                s.SetCallBackEx(nullptr);
                                return R();
                            }};
    return ops;
}
} // namespace

CallOutcome CallInterface(IFlashSimulator& sim, const std::string& op, const std::vector<std::string>& args) {
    static const std::map<std::string, Operation> table = BuildTable();
    CallOutcome outcome;
    const auto it = table.find(op);
    if (it == table.end()) {
        outcome.bKnown = false;
        return outcome;
    }
    if (args.size() != it->second.nArgs) {
        outcome.error = op + " takes " + std::to_string(it->second.nArgs) + " argument(s)";
        return outcome;
    }
    outcome.result = it->second.run(sim, args);
    return outcome;
}
