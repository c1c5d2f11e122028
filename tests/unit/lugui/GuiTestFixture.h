// Shared set-up of the widget toolkit tests: a dialog that records what the toolkit calls on it, a layout, a
// control animation file and a manager driven the way a host drives it.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "LogCapture.h"
#include "TempClientDir.h"
#include "hostlibs/HostCanvas.h"
#include "hostlibs/HostEnv.h"
#include "platform/Graphics.h"
#include "platform/LuButton.h"
#include "platform/LuCheck.h"
#include "platform/LuDialog.h"
#include "platform/LuEdit.h"
#include "platform/LuGui.h"
#include "platform/LuLayoutRecord.h"
#include "platform/LuList.h"
#include "platform/LuProgress.h"
#include "platform/LuStatic.h"

namespace luguitest {

inline constexpr UINT IDD_MAIN = 2000;
inline constexpr UINT IDD_OTHER = 2001;
inline constexpr UINT IDC_BUTTON = 10;
inline constexpr UINT IDC_CHECK = 11;
inline constexpr UINT IDC_EDIT = 12;
inline constexpr UINT IDC_LIST = 13;
inline constexpr UINT IDC_PROGRESS = 14;
inline constexpr UINT IDC_STATIC = 15;
inline constexpr std::size_t CONTROL_COUNT = 6;

// Dialog 2000 covers (100, 50)-(400, 250) on the screen; dialog 2001 covers (150, 100)-(450, 300), so the two
// overlap and 2001's button lies over an empty part of 2000.
inline constexpr const char* LAYOUT = R"(
[Dialog2000]
Rect = 100 50 300 200
Background = Panel
; dialogs start hidden whatever the layout says
Visible = 1
[Dialog2000.10]
Kind = Button
Rect = 10 10 80 30
Background = Btn4
Text = Go
[Dialog2000.11]
Kind = Check
Rect = 10 50 20 20
Background = Tick
[Dialog2000.12]
Kind = Edit
Rect = 10 80 150 20
Font = 16
[Dialog2000.13]
Kind = List
Rect = 170 10 120 50
[Dialog2000.14]
Kind = Progress
Rect = 10 110 200 10
Background = Bar2
[Dialog2000.15]
Kind = Static
Rect = 10 130 100 20
Text = Hello

[Dialog2001]
Rect = 150 100 300 200
[Dialog2001.10]
Kind = Button
Rect = 10 10 80 30
Text = Other
[Dialog2001.12]
Kind = Edit
Rect = 10 50 150 20
)";

// Placeholder boxes with distinct colours, so that every title and frame count is known.
inline constexpr const char* CONTROL_ANI = R"(
[Panel]
Frame0=box 8 8 FF102030
[Btn4]
Frame0=box 8 8 FF000010
Frame1=box 8 8 FF000011
Frame2=box 8 8 FF000012
Frame3=box 8 8 FF000013
[Btn1]
Frame0=box 8 8 FF000020
[Tick]
Frame0=box 8 8 FF000030
Frame1=box 8 8 FF000031
[Bar1]
Frame0=box 8 8 FF000040
[Bar2]
Frame0=box 8 8 FF000050
Frame1=box 8 8 FF00FF00
)";

/// A layout with extra lines at the start of one of its sections (a repeated section would be ignored).
inline std::string LayoutWith(const std::string& section, const std::string& lines,
                              const std::string& base = LAYOUT) {
    std::string layout = base;
    const std::string header = "[" + section + "]\n";
    const std::size_t at = layout.find(header);
    if (at != std::string::npos) layout.insert(at + header.size(), lines);
    return layout;
}

/// An edit that records its change notifications.
class RecordingEdit : public LuGui::CLuEdit {
public:
    void OnTextChanged() override { m_notes.push_back("text"); }
    void OnSelChange() override { m_notes.push_back("sel"); }
    std::vector<std::string> TakeNotes() { return std::exchange(m_notes, {}); }

private:
    std::vector<std::string> m_notes;
};

/// A dialog with one control of each common kind that records the toolkit's calls, the notifications reaching
/// its WindowProc (mouse and key messages left out) and the messages passing PreTranslateMessage.
class TestDialog : public LuGui::CLuDialog {
public:
    explicit TestDialog(UINT nTemplate) : CLuDialog(nTemplate) {}

    void PreSetParam() override {
        m_calls.push_back("PreSetParam");
        m_progress.PreSetParam(0, 1000);
    }
    BOOL PreInitData() override {
        m_calls.push_back("PreInitData");
        return CLuDialog::PreInitData();
    }
    void DoDataExchange(LuGui::CDataExchange* pDX) override {
        m_calls.push_back("DoDataExchange");
        LuGui::DDX_Control(pDX, IDC_BUTTON, m_button);
        LuGui::DDX_Control(pDX, IDC_CHECK, m_check);
        LuGui::DDX_Control(pDX, IDC_EDIT, m_edit);
        LuGui::DDX_Control(pDX, IDC_LIST, m_list);
        LuGui::DDX_Control(pDX, IDC_PROGRESS, m_progress);
        LuGui::DDX_Control(pDX, IDC_STATIC, m_static);
    }
    void MessageMap() override {
        m_calls.push_back("MessageMap");
        PushMsgMap(WM_COMMAND, IDC_BUTTON, &TestDialog::OnButton);
        PushMsgMap(WM_COMMAND, IDC_CHECK, &TestDialog::OnCheck);
    }
    BOOL OnInitDialog() override {
        CLuDialog::OnInitDialog();
        m_calls.push_back(IsOpenInactive() ? "OnInitDialog inactive" : "OnInitDialog");
        return TRUE;
    }
    LRESULT WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) override {
        if (!IsInput(uMsg))
            m_calls.push_back("WindowProc " + std::to_string(uMsg) + ' ' + std::to_string(wParam) + ' ' +
                              std::to_string(lParam));
        return CLuDialog::WindowProc(uMsg, wParam, lParam);
    }
    BOOL PreTranslateMessage(MSG* pMsg) override {
        m_preTranslated.push_back(pMsg->message);
        return m_bStopInPreTranslate ? TRUE : CLuDialog::PreTranslateMessage(pMsg);
    }
    void Reset() override { m_calls.push_back("Reset"); }

    void OnButton() { m_calls.push_back("OnButton"); }
    void OnCheck() { m_calls.push_back(m_check.GetCheckValue() ? "OnCheck 1" : "OnCheck 0"); }

    /// The calls recorded since the last take.
    std::vector<std::string> TakeCalls() { return std::exchange(m_calls, {}); }
    std::vector<UINT> TakePreTranslated() { return std::exchange(m_preTranslated, {}); }

    LuGui::CLuButton m_button;
    LuGui::CLuCheck m_check;
    RecordingEdit m_edit;
    LuGui::CLuList m_list;
    LuGui::CLuProgress m_progress;
    LuGui::CLuStatic m_static;
    bool m_bStopInPreTranslate = false;

private:
    static bool IsInput(UINT uMsg) {
        return (uMsg >= WM_MOUSEMOVE && uMsg <= WM_MOUSEWHEEL) || uMsg == WM_KEYDOWN || uMsg == WM_KEYUP ||
               uMsg == WM_CHAR;
    }

    std::vector<std::string> m_calls;
    std::vector<UINT> m_preTranslated;
};

/// The centre of a window on the screen.
inline POINT Centre(const LuGui::CLuBaseWindow& wnd) {
    const RECT rc = wnd.GetWindowRect();
    return POINT{(rc.left + rc.right) / 2, (rc.top + rc.bottom) / 2};
}

/// The recorded operations of one kind.
inline std::vector<host::DrawOp> OpsOfKind(const std::vector<host::DrawOp>& ops, const std::string& kind) {
    std::vector<host::DrawOp> out;
    for (const host::DrawOp& op : ops)
        if (op.kind == kind) out.push_back(op);
    return out;
}

/// Each operation as its kind followed by what identifies it: the title of pictures, the text of texts.
inline std::vector<std::string> Outline(const std::vector<host::DrawOp>& ops) {
    std::vector<std::string> out;
    for (const host::DrawOp& op : ops) {
        std::string line = op.kind;
        if (!op.name.empty()) line += ' ' + op.name;
        if (op.kind == "ani") line += '#' + std::to_string(op.frame);
        if (!op.text.empty()) line += ' ' + op.text;
        out.push_back(line);
    }
    return out;
}

class GuiTest : public testing::Test {
protected:
    void SetUp() override {
        host::ClearGraphicsCaches();
        host::UseCanvas(host::CanvasKind::Recording);
        m_dir.Write("ani/Control.ani", CONTROL_ANI);
    }
    void TearDown() override {
        if (m_mgr) m_mgr->Release();
        host::ClearGraphicsCaches();
    }

    /// Writes the layout as FlashGui.ini, starts a manager on it and registers both test dialogs.
    void Start(const std::string& layout = LAYOUT) {
        m_dir.Write("FlashGui.ini", layout);
        StartManager("FlashGui.ini");
        Register(m_dlg);
        Register(m_other);
    }
    /// Starts a manager on whatever layout files the client directory holds; returns Init's answer.
    bool StartManager(const char* szLayoutFile) {
        m_mgr = LuGui::CreateNewGuiMgr();
        return m_mgr->Init(nullptr, 0, 0, szLayoutFile);
    }
    void Register(TestDialog& dlg) {
        ASSERT_TRUE(m_mgr->RegisterDialog(&dlg, 0, 0));
        dlg.TakeCalls();
    }
    /// Shows a dialog and forgets what showing it recorded.
    static void Open(TestDialog& dlg) {
        dlg.ShowWindow(SW_SHOW);
        dlg.TakeCalls();
        dlg.TakePreTranslated();
    }

    // ---- input, as an operating system delivers it ---------------------------------------------

    LRESULT Press(int x, int y) {
        host::SetCursor(x, y);
        host::SetKeyDown(VK_LBUTTON, true);
        return m_mgr->MsgProc(nullptr, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    }
    LRESULT Lift(int x, int y) {
        host::SetCursor(x, y);
        host::SetKeyDown(VK_LBUTTON, false);
        return m_mgr->MsgProc(nullptr, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    }
    LRESULT Click(int x, int y) {
        const LRESULT down = Press(x, y);
        const LRESULT up = Lift(x, y);
        return down && up ? 1 : 0;
    }
    LRESULT Click(POINT pt) { return Click(pt.x, pt.y); }
    LRESULT ClickOn(const LuGui::CLuBaseWindow& wnd) { return Click(Centre(wnd)); }
    void Type(UINT nChar) { m_mgr->MsgProc(nullptr, WM_CHAR, nChar, 1); }
    void Key(int nVirtKey) {
        host::SetKeyDown(nVirtKey, true);
        m_mgr->MsgProc(nullptr, WM_KEYDOWN, static_cast<WPARAM>(nVirtKey), 1);
        host::SetKeyDown(nVirtKey, false);
    }

    /// The operations one window draws on its own.
    static std::vector<host::DrawOp> Draw(LuGui::CLuBaseWindow& wnd) {
        host::BeginFrame();
        wnd.Show();
        return host::GetRecordedOps();
    }
    /// One frame of the manager (Process, then Show); the operations it drew.
    std::vector<host::DrawOp> Frame() {
        host::BeginFrame();
        m_mgr->Process();
        m_mgr->Show();
        return host::GetRecordedOps();
    }

    TempClientDir m_dir;
    TestDialog m_dlg{IDD_MAIN};
    TestDialog m_other{IDD_OTHER};
    LuGui::ILuGuiMgr* m_mgr = nullptr;
};

} // namespace luguitest
