// The head grid: faces from the head configuration, hover frame, and the way back to the profession step.
#include "rolecreate/DlgFlashSelectHead.h"

#include "platform/BaseLib.h"
#include "resources/SelectHeadMgr.h"
#include "rolecreate/CreationGates.h"
#include "rolecreate/DlgFlashSelectPro.h"
#include "rolecreate/ProfessionTable.h"
#include "rolecreate/RolePreview.h"
#include "screen/LayoutNumbers.h"

namespace {
constexpr int TITLE_BUFFER = 32;
constexpr int FACE_FRAME = 1;
constexpr const char* HOVER_FRAME_PICTURE = "Login_SelectStatPic";
constexpr std::int32_t FALLBACK_PROFESSION = 10;
} // namespace

CDlgFlashSelectHead::CDlgFlashSelectHead() : CSimDialog(IDD) {
}

CDlgFlashSelectHead::~CDlgFlashSelectHead() = default;

void CDlgFlashSelectHead::DoDataExchange(LuGui::CDataExchange* pDX) {
    CSimDialog::DoDataExchange(pDX);
    using LuGui::DDX_Control;
    DDX_Control(pDX, IDC_LARGE_FACE, m_imgLargeFace);
    for (int i = 0; i < FACE_BUTTONS; ++i)
        DDX_Control(pDX, static_cast<int>(FACE_BUTTON_IDS[i]), m_imgFaces[i]);
    // The hover frame is drawn over the faces: bound last but the back button.
    DDX_Control(pDX, IDC_HOVER_FRAME, m_imgHoverFrame);
    DDX_Control(pDX, IDC_BACK, m_btnBack);
}

void CDlgFlashSelectHead::MessageMap() {
    CSimDialog::MessageMap();
    for (int i = 0; i < FACE_BUTTONS; ++i)
        PushMsgMap(WM_COMMAND, FACE_BUTTON_IDS[i], [this, i] { OnFace(i); });
    PushMsgMap(WM_COMMAND, IDC_BACK, &CDlgFlashSelectHead::OnBack);
}

void CDlgFlashSelectHead::PreSetParam() {
    CSimDialog::PreSetParam();
    m_imgHoverFrame.InitImage(HOVER_FRAME_PICTURE, IMAGE_CONTROL, nullptr);
    m_imgHoverFrame.SetCurFrame(FACE_FRAME);
    m_imgLargeFace.InitImage(nullptr, IMAGE_PLAYER_FACE, nullptr);
    m_imgLargeFace.SetClickable(true);
    for (CSimImage& face : m_imgFaces) {
        face.InitImage(nullptr, IMAGE_PLAYER_FACE, nullptr);
        face.SetClickable(true);
    }
}

void CDlgFlashSelectHead::ResetChoice() {
    m_nHead = 0;
}

void CDlgFlashSelectHead::FormatFaceTitle(std::int32_t nFace, char* szBuf, int nSize) {
    SafeSprintf(szBuf, static_cast<std::size_t>(nSize), "Face%d", nFace);
}

std::int32_t CDlgFlashSelectHead::FaceOf(int nIndex) const {
    std::int32_t nProfession = m_pSelectPro ? m_pSelectPro->GetProfession() : FALLBACK_PROFESSION;
    const std::int32_t nSex = m_pSelectPro ? m_pSelectPro->GetSex() : CProfessionTable::SEX_MALE;
    if (nProfession < 1) nProfession = FALLBACK_PROFESSION;
    if (nIndex >= FACE_BUTTONS || nIndex < 0) nIndex = 0;
    const CSelectHeadMgr& heads = CSelectHeadMgr::GetInstance();
    if (nIndex == 0) return heads.GetProHeadAni(nProfession + nSex);
    if (nSex == CProfessionTable::SEX_MALE) return heads.GetMaleHead(nIndex - 1);
    if (nSex == CProfessionTable::SEX_FEMALE) return heads.GetFemaleHead(nIndex - 1);
    return 0;
}

std::int32_t CDlgFlashSelectHead::GetLook(int nIndex) const {
    return CCreationGates::LookOfFace(FaceOf(nIndex));
}

int CDlgFlashSelectHead::GetFaceCount() const {
    const std::int32_t nSex = m_pSelectPro ? m_pSelectPro->GetSex() : CProfessionTable::SEX_MALE;
    const CSelectHeadMgr& heads = CSelectHeadMgr::GetInstance();
    if (nSex == CProfessionTable::SEX_MALE) return heads.GetMaleHeadCount();
    if (nSex == CProfessionTable::SEX_FEMALE) return heads.GetFemaleHeadCount();
    return 0;
}

BOOL CDlgFlashSelectHead::OnInitDialog() {
    CSimDialog::OnInitDialog();
    char szTitle[TITLE_BUFFER] = {};
    FormatFaceTitle(FaceOf(m_nHead), szTitle, TITLE_BUFFER);
    m_imgLargeFace.SetAniTitle(szTitle, true);
    m_imgLargeFace.SetCurFrame(FACE_FRAME);
    for (CSimImage& face : m_imgFaces) face.ShowWindow(SW_HIDE);
    m_nCount = GetFaceCount();
    for (int i = 0; i < m_nCount && i < FACE_BUTTONS; ++i) {
        FormatFaceTitle(FaceOf(i), szTitle, TITLE_BUFFER);
        m_imgFaces[i].SetAniTitle(szTitle, true);
        m_imgFaces[i].SetCurFrame(FACE_FRAME);
        m_imgFaces[i].ShowWindow(SW_SHOW);
    }
    m_imgHoverFrame.ShowWindow(SW_HIDE);
    if (IsOpenInactive()) {
        m_btnBack.EnableWindow(FALSE);
        m_bHeadClickable = false;
    }
    return TRUE;
}

LRESULT CDlgFlashSelectHead::WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    if (uMsg == LuGui::LU_MSG_ACTIVATE) {
        m_btnBack.EnableWindow(TRUE);
        m_bHeadClickable = true;
    }
    return CSimDialog::WindowProc(uMsg, wParam, lParam);
}

int CDlgFlashSelectHead::FaceButtonAt(POINT pt) const {
    for (int i = 0; i < m_nCount && i < FACE_BUTTONS; ++i)
        if (m_imgFaces[i].IsWindowVisible() && m_imgFaces[i].HitTest(pt)) return i;
    return -1;
}

void CDlgFlashSelectHead::ShowHoverFrame(int nButton) {
    if (nButton < 0) {
        m_imgHoverFrame.ShowWindow(SW_HIDE);
        return;
    }
    int offset[2] = {0, 0};
    READ_LAYOUT_NUMBERS(STR_HOVER_OFFSET, offset);
    RECT rc{};
    m_imgFaces[nButton].GetWindowRect(&rc);
    const RECT rcDialog = GetWindowRect();
    m_imgHoverFrame.MoveWindow(rc.left - rcDialog.left + offset[0], rc.top - rcDialog.top + offset[1],
                               m_imgHoverFrame.GetWidth(), m_imgHoverFrame.GetHeight());
    m_imgHoverFrame.ShowWindow(SW_SHOW);
}

BOOL CDlgFlashSelectHead::PreTranslateMessage(MSG* pMsg) {
    if (!pMsg) return FALSE;
    if (pMsg->message == WM_LBUTTONDOWN && m_bHeadClickable) {
        if (m_imgLargeFace.HitTest(pMsg->pt)) {
            ReturnToProfession();
            return TRUE;
        }
        if (const int nButton = FaceButtonAt(pMsg->pt); nButton >= 0) {
            m_nHead = nButton;
            ReturnToProfession();
            return TRUE;
        }
    }
    if (pMsg->message == WM_MOUSEMOVE) {
        if (m_bHeadClickable && m_imgLargeFace.HitTest(pMsg->pt)) {
            ReturnToProfession();
            return TRUE;
        }
        ShowHoverFrame(m_nCount < 1 ? -1 : FaceButtonAt(pMsg->pt));
    }
    return CSimDialog::PreTranslateMessage(pMsg);
}

void CDlgFlashSelectHead::OnFace(int nIndex) {
    m_nHead = nIndex;
    ReturnToProfession();
}

void CDlgFlashSelectHead::OnBack() {
    ReturnToProfession();
}

void CDlgFlashSelectHead::ReturnToProfession() {
    ShowWindow(SW_HIDE);
    if (m_pSelectPro) m_pSelectPro->ShowWindow(SW_SHOW);
}

int CDlgFlashSelectHead::Show() {
    CRolePreview::ResetCamera();
    return CSimDialog::Show();
}
