// The scenario step "call OP [ARG ...]": any interface operation by its name, with its result as text.
#include "InterfaceCalls.h"

#include <cstdlib>
#include <functional>
#include <map>

#include "BaseLib.h"
#include "StepValues.h"

namespace {
using Args = std::vector<std::string>;

// Kinds of arguments, one letter each in an operation's signature: checked before the operation runs.
constexpr char ARG_INT = 'i';      // a signed 32-bit number
constexpr char ARG_UNSIGNED = 'u'; // an unsigned 32-bit number (ids, messages)
constexpr char ARG_WORD = 'w';     // a number that fills a message parameter (64 bits)
constexpr char ARG_TRUTH = 'b';    // 1, 0, true or false
constexpr char ARG_TEXT = 's';     // any text

struct Operation {
    std::string_view signature; ///< one kind letter per argument
    std::function<std::optional<std::string>(IFlashSimulator&, const Args&)> run;
};

// Why the argument does not fit its kind; empty when it does.
std::string CheckArgument(char kind, const std::string& value) {
    std::string reason;
    switch (kind) {
    case ARG_INT:
        ParseStepNumber(value, INT32_MIN, INT32_MAX, reason);
        break;
    case ARG_UNSIGNED:
        ParseStepNumber(value, 0, UINT32_MAX, reason);
        break;
    case ARG_WORD:
        ParseStepNumber(value, INT64_MIN, INT64_MAX, reason);
        break;
    case ARG_TRUTH:
        ParseStepTruth(value, reason);
        break;
    case ARG_TEXT:
    default:
        break;
    }
    return reason;
}

// Readers of arguments already checked against the operation's signature.
long long Num(const std::string& s) {
    std::string ignored;
    return ParseStepNumber(s, INT64_MIN, INT64_MAX, ignored).value_or(0);
}
std::int32_t I(const std::string& s) {
    return static_cast<std::int32_t>(Num(s));
}
bool B(const std::string& s) {
    std::string ignored;
    return ParseStepTruth(s, ignored).value_or(false);
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
    ops[set] = {"i", [setter](IFlashSimulator& s, const Args& a) {
                    (s.*setter)(I(a[0]));
                    return std::optional<std::string>();
                }};
    ops[get] = {"", [getter](IFlashSimulator& s, const Args&) {
                    return std::optional(Text(static_cast<long long>((s.*getter)())));
                }};
}

void BoolSetter(std::map<std::string, Operation>& ops, const char* name,
                void (IFlashSimulator::*setter)(bool)) {
    ops[name] = {"b", [setter](IFlashSimulator& s, const Args& a) {
                     (s.*setter)(B(a[0]));
                     return std::optional<std::string>();
                 }};
}

void BoolGetter(std::map<std::string, Operation>& ops, const char* name, bool (IFlashSimulator::*getter)()) {
    ops[name] = {"", [getter](IFlashSimulator& s, const Args&) {
                     return std::optional(Text(static_cast<long long>((s.*getter)())));
                 }};
}

void Action(std::map<std::string, Operation>& ops, const char* name, void (IFlashSimulator::*action)()) {
    ops[name] = {"", [action](IFlashSimulator& s, const Args&) {
                     (s.*action)();
                     return std::optional<std::string>();
                 }};
}

std::map<std::string, Operation> BuildTable() {
    std::map<std::string, Operation> ops;
    using R = std::optional<std::string>;
    ops["SetVariable"] = {"ss", [](IFlashSimulator& s, const Args& a) {
                              s.SetVariable(a[0].c_str(), a[1].c_str());
                              return R();
                          }};
    ops["GetVariable"] = {
        "s", [](IFlashSimulator& s, const Args& a) { return R(Text(s.GetVariable(a[0].c_str()))); }};
    ops["ShowMessage"] = {"u", [](IFlashSimulator& s, const Args& a) {
                              s.ShowMessage(static_cast<std::uint32_t>(Num(a[0])));
                              return R();
                          }};
    Action(ops, "Process", &IFlashSimulator::Process);
    Action(ops, "Show", &IFlashSimulator::Show);
    ops["WindowProc"] = {"uww", [](IFlashSimulator& s, const Args& a) {
                             return R(Text(static_cast<long long>(s.WindowProc(
                                 nullptr, static_cast<UINT>(Num(a[0])), static_cast<WPARAM>(Num(a[1])),
                                 static_cast<LPARAM>(Num(a[2]))))));
                         }};
    ops["PreTranslateMessage"] = {"uww", [](IFlashSimulator& s, const Args& a) {
                                      MSG msg{nullptr,
                                              static_cast<UINT>(Num(a[0])),
                                              static_cast<WPARAM>(Num(a[1])),
                                              static_cast<LPARAM>(Num(a[2])),
                                              0,
                                              {0, 0}};
                                      return R(Text(static_cast<long long>(s.PreTranslateMessage(&msg))));
                                  }};
    BoolGetter(ops, "IsWebRegisterVisible", &IFlashSimulator::IsWebRegisterVisible);
    ops["SetSceneType"] = {"i", [](IFlashSimulator& s, const Args& a) {
                               s.SetSceneType(I(a[0]));
                               return R();
                           }};
    ops["GetStr"] = {"u", [](IFlashSimulator& s, const Args& a) {
                         return R(Text(s.GetStr(static_cast<std::uint32_t>(Num(a[0])))));
                     }};
    ops["GetStrInt"] = {
        "u", [](IFlashSimulator& s, const Args& a) {
            return R(Text(static_cast<long long>(s.GetStrInt(static_cast<std::uint32_t>(Num(a[0]))))));
        }};
    ops["SetCreateRoleParam"] = {"iiiiibii", [](IFlashSimulator& s, const Args& a) {
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
    ops["SetNameCheck"] = {"bbb", [](IFlashSimulator& s, const Args& a) {
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
        "i", [](IFlashSimulator& s, const Args& a) { return R(Text(s.SetNameSuggest(I(a[0])))); }};
    BoolGetter(ops, "GetNameSuggest", &IFlashSimulator::GetNameSuggest);
    Action(ops, "FocusAccountField", &IFlashSimulator::FocusAccountField);
    ops["SetRandomName"] = {"s", [](IFlashSimulator& s, const Args& a) {
                                s.SetRandomName(a[0].c_str(), static_cast<std::int32_t>(a[0].size()));
                                return R();
                            }};
    BoolGetter(ops, "IsNameUnchanged", &IFlashSimulator::IsNameUnchanged);
    ops["StartPlayerListThread"] = {"", [](IFlashSimulator& s, const Args&) {
                                        // The host waits for the worker so that the transcript stays in
                                        // order.
                                        HANDLE h = s.StartPlayerListThread();
                                        if (!h) return R("(null)");
                                        WaitForSingleObject(h, INFINITE);
                                        CloseHandle(h);
                                        return R("handle");
                                    }};
    ops["GetSelection"] = {"", [](IFlashSimulator& s, const Args&) {
                               std::int32_t first = 0, second = 0;
                               const bool set = s.GetSelection(&first, &second);
                               return R(Text(set) + " " + Text(static_cast<long long>(first)) + " " +
                                        Text(static_cast<long long>(second)));
                           }};
    ops["SetSelection"] = {"bii", [](IFlashSimulator& s, const Args& a) {
                               s.SetSelection(B(a[0]), I(a[1]), I(a[2]));
                               return R();
                           }};
    Action(ops, "ShowSwitchLanguage", &IFlashSimulator::ShowSwitchLanguage);
    Action(ops, "ReloadStrings", &IFlashSimulator::ReloadStrings);
    Action(ops, "RegisterRangedStrings", &IFlashSimulator::RegisterRangedStrings);
    ops["ManagerCall"] = {"uww", [](IFlashSimulator& s, const Args& a) {
                              s.ManagerCall(static_cast<UINT>(Num(a[0])), static_cast<WPARAM>(Num(a[1])),
                                            static_cast<LPARAM>(Num(a[2])));
                              return R();
                          }};
    Action(ops, "RegisterRole", &IFlashSimulator::RegisterRole);
    ops["SetCallBack"] = {"s", [](IFlashSimulator& s, const Args&) {
                              s.SetCallBack(nullptr);
                              return R();
                          }};
    ops["SetCallBackEx"] = {"s", [](IFlashSimulator& s, const Args&) {
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
    const std::string_view signature = it->second.signature;
    if (args.size() != signature.size()) {
        outcome.error = op + " takes " + std::to_string(signature.size()) + " argument(s)";
        return outcome;
    }
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string reason = CheckArgument(signature[i], args[i]);
        if (!reason.empty()) {
            outcome.error = op + " argument " + std::to_string(i + 1) + ": " + reason;
            return outcome;
        }
    }
    outcome.result = it->second.run(sim, args);
    return outcome;
}
