// The creation preview's state machine: idle, show, leave and rebuild, with the camera by elapsed time.
#include "rolecreate/RolePreview.h"

#include "platform/GameData.h"
#include "platform/Graphics.h"
#include "rolecreate/ProfessionTable.h"

namespace {
// The figure's parts and which record value each takes (part 61 is always 1).
constexpr int PART_NUMBERS[SRoleCreateRecord::PART_COUNT] = {3, 24, 1, 5, 6, 35, 23, 9};
constexpr int PART_FIXED = 61;
constexpr int PART_FRAME = 8;
constexpr double CAMERA_DISTANCE = -1000.0;
constexpr int CAMERA_MODE = 3;
constexpr double PERCENT = 100.0;

void PlayOn(CRole& role, int nAction) {
    role.PlayAction(nAction, -1, 0, 0, 0, -1, -1, -1, 0, 0);
}
} // namespace

CRolePreview::CRolePreview(SOptions options) : m_options(options) {
}

void CRolePreview::Reset() {
    m_nProfession = CProfessionTable::PROFESSION_SWORD;
    m_nSex = CProfessionTable::SEX_MALE;
    m_nScalePercent = 100;
    m_dwCameraStart = 0;
}

void CRolePreview::InitGround() {
    m_ground.Clear();
    m_ground.SetOblique(false);
    m_ground.Add(GROUND_EFFECT);
    m_ground.Scale(1.0, 1.0, 1.0);
}

bool CRolePreview::SetProfessionAndSex(std::int32_t nProfession, std::int32_t nSex, bool bForced) {
    const bool bProfessionChanged = nProfession != m_nProfession || bForced;
    if (bProfessionChanged) m_nProfession = nProfession;
    const bool bSexChanged = nSex != m_nSex || bForced;
    if (bSexChanged) {
        m_nCameraObj = nSex == CProfessionTable::SEX_FEMALE ? CAMERA_FEMALE : CAMERA_MALE;
        if (!bForced) m_dwCameraStart = TimeGet();
        m_nSex = nSex;
    }
    if (!bProfessionChanged && !bSexChanged) return false;
    m_role.ResetActionData(false, false);
    Replace(bForced);
    return true;
}

void CRolePreview::SetProfession(std::int32_t nProfession) {
    if (nProfession == m_nProfession) return;
    m_nProfession = nProfession;
    m_role.ResetActionData(false, false);
    Replace(false);
}

void CRolePreview::SetSex(std::int32_t nSex) {
    if (nSex == m_nSex) return;
    m_nCameraObj = nSex == CProfessionTable::SEX_FEMALE ? CAMERA_FEMALE : CAMERA_MALE;
    m_dwCameraStart = TimeGet();
    m_nSex = nSex;
    m_role.ResetActionData(false, false);
    Replace(false);
}

void CRolePreview::BuildAndShow() {
    m_nCameraObj = m_nSex == CProfessionTable::SEX_FEMALE ? CAMERA_FEMALE : CAMERA_MALE;
    m_role.ResetActionData(false, false);
    Build();
    Play(ROLE_ACTION_SHOW);
    m_nPreviewState = STATE_SHOWING;
}

void CRolePreview::PlayAction(int nAction) {
    m_role.ResetActionData(false, false);
    Play(nAction);
}

void CRolePreview::Replace(bool bForced) {
    if (!bForced && m_role.GetCurAction() == ROLE_ACTION_IDLE) {
        Play(ROLE_ACTION_LEAVE);
        m_nPreviewState = STATE_LEAVING;
        return;
    }
    Build();
    Play(ROLE_ACTION_SHOW);
    m_nPreviewState = STATE_SHOWING;
}

bool CRolePreview::Builds(std::int32_t nProfession, std::int32_t nSex) const {
    const int nIndex = CProfessionTable::IndexOf(nProfession);
    if (nIndex < 0 || !CProfessionTable::IsSex(nSex)) return false;
    return nProfession != CProfessionTable::PROFESSION_SWORD || m_options.bBuildsSword;
}

void CRolePreview::Build() {
    if (!Builds(m_nProfession, m_nSex)) return;
    SRoleCreateRecord record;
    IRoleData* pData = RoleDataQuery();
    if (!pData || !pData->GetCreateRecord(m_nProfession + m_nSex, record)) return;
    m_role.Create(record.nLook, 1, false, 0);
    if (m_options.bHeroSelf) m_role.SetHeroSelf(1);
    if (m_role.HasBody()) {
        m_role.SetBodyPart(PART_FIXED, 1);
        for (int i = 0; i < SRoleCreateRecord::PART_COUNT; ++i)
            m_role.SetBodyPart(PART_NUMBERS[i], record.nParts[i]);
    }
    m_nScalePercent = record.nScalePercent;
    Play(ROLE_ACTION_IDLE);
}

void CRolePreview::Play(int nAction) {
    PlayOn(m_role, nAction);
}

int CRolePreview::CameraFrameAt(DWORD dwStart, DWORD dwNow) {
    return static_cast<int>(static_cast<double>(dwNow - dwStart) / CAMERA_FRAME_MS + 0.5);
}

void CRolePreview::ResetCamera() {
    CameraQuery()->SetCameraObj(0, false);
    CMyBitmap::GameCameraSet(CMyBitmap::GetScreenWidth() / 2, CMyBitmap::GetScreenHeight() / 2,
                             CAMERA_DISTANCE, CAMERA_MODE);
}

bool CRolePreview::ChooseDrawn(int& nAction, int& nFrame, bool& bRebuild) {
    m_role.Process(0);
    const int nFrameNow = m_role.GetFrameIndex();
    const int nActionNow = m_role.GetCurAction();
    if (nActionNow != m_nLastAction) {
        m_nPrevAction = m_nLastAction > 0 ? m_nLastAction : nActionNow;
        m_nLastAction = nActionNow;
    }
    m_nPrevFrame = m_nLastFrame;
    m_nLastFrame = nFrameNow;
    nAction = nActionNow;
    nFrame = nFrameNow;
    bRebuild = false;
    switch (m_nPreviewState) {
    case STATE_SHOWING:
        if (nActionNow != ROLE_ACTION_SHOW) {
            m_nPreviewState = STATE_FREE;
            nAction = ROLE_ACTION_NONE;
            nFrame = 0;
        }
        return true;
    case STATE_FREE:
        return true;
    case STATE_LEAVING:
        if (nActionNow != ROLE_ACTION_LEAVE) {
            m_nPreviewState = STATE_SHOWING;
            nAction = m_nPrevAction;
            nFrame = m_nPrevFrame;
            bRebuild = true;
        }
        return true;
    default:
        return false;
    }
}

void CRolePreview::DrawFigure(int nAction, int nFrame) {
    if (m_options.bMapCall) {
        // NOTE: the English preview asks the map library for the origin's cell before every figure; the
        // answer is not used, the call is what the map library expects of it.
        int nCellX = 0, nCellY = 0;
        if (IGameMap* pMap = IGameMap::GetInstance()) pMap->ScreenToCell(0, 0, nCellX, nCellY);
    }
    if (!m_role.HasBody()) return;
    m_role.PlaceBody(0, 0, 0, 0, m_nScalePercent / PERCENT);
    m_role.SetBodyAction(nAction, 1, 0, 0, 0, 1, 0);
    m_role.SetBodyPart(PART_FRAME, nFrame);
    m_role.SetBodyLight(4, 300.0, -500.0, 500.0, 0.5, 1.0, 1.0, 1.0);
    m_role.DrawBody(0, 0);
}

void CRolePreview::Show() {
    ICamera* pCamera = CameraQuery();
    pCamera->SetCameraObj(m_nCameraObj, false);
    pCamera->SetCameraObjFrame(CameraFrameAt(m_dwCameraStart, TimeGet()), false, true, 0, 0);
    m_ground.Show(0, 0, nullptr);
    int nAction = 0, nFrame = 0;
    bool bRebuild = false;
    if (ChooseDrawn(nAction, nFrame, bRebuild)) {
        DrawFigure(nAction, nFrame);
        if (bRebuild) {
            Build();
            m_role.ResetActionData(false, false);
            Play(ROLE_ACTION_SHOW);
        }
    }
    ResetCamera();
}
