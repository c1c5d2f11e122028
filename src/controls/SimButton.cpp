// Buttons: sub-ground picture, effects at twice their offsets, and the drawing order of the layers.
#include "controls/SimButton.h"

#include "platform/GameGraphic.h"
#include "platform/Gui3DEffect.h"
#include "platform/Log.h"
#include "platform/LuLayoutRecord.h"
#include "platform/MyAni.h"

namespace {
// NOTE: effects are drawn at twice their offsets from the button's corner; the offsets are given in the
// half-scale units of the original artwork.
constexpr int EFFECT_OFFSET_SCALE = 2;
} // namespace

CSimButton::~CSimButton() = default;

BOOL CSimButton::PreInitData() {
    const BOOL bResult = LuGui::CLuButton::PreInitData();
    if (!bResult) return bResult;
    const LuGui::CLuLayoutRecord* pLayout = GetLayoutRecord();
    if (!pLayout) return TRUE;
    if (const char* sz = pLayout->GetValue("SubGround")) m_strSubGround = sz;
    if (const char* sz = pLayout->GetValue("SubGroundOffsetX")) m_nSubGroundOffsetX = SafeAtoi(sz);
    if (const char* sz = pLayout->GetValue("SubGroundOffsetY")) m_nSubGroundOffsetY = SafeAtoi(sz);
    return TRUE;
}

// ---- effects -------------------------------------------------------------------------------------

void CSimButton::DeleteEffect(CGui3DEffect* pEffect, const char* szName) {
    if (!pEffect) return;
    if (szName && *szName)
        pEffect->Delete(szName);
    else
        pEffect->Clear();
}

void CSimButton::DeleteBgEffect(const char* szName) {
    DeleteEffect(m_pBgEffect, szName);
}

void CSimButton::DeleteFgEffect(const char* szName) {
    DeleteEffect(m_pFgEffect, szName);
}

BOOL CSimButton::TestEffect(const CGui3DEffect* pEffect, const char* szName, int nLine) {
    if (!szName || !*szName) {
        LogMsg("ASSERT(FALSE) in %d line of %s", nLine, __FILE__);
        return FALSE;
    }
    return pEffect && pEffect->TestEffect(szName) ? TRUE : FALSE;
}

BOOL CSimButton::TestFgEffect(const char* szName) {
    return TestEffect(m_pFgEffect, szName, __LINE__);
}

BOOL CSimButton::TestBgEffect(const char* szName) {
    return TestEffect(m_pBgEffect, szName, __LINE__);
}

CGui3DEffect* CSimButton::EnsureEffect(bool bForeground) {
    CGui3DEffect* pEffect = bForeground ? m_pFgEffect : m_pBgEffect;
    if (pEffect) return pEffect;
    pEffect = GameCreateGui3DEffect();
    pEffect->SetShowRect(GetWindowRect());
    if (bForeground)
        SetFgEffect(pEffect);
    else
        SetBgEffect(pEffect);
    return pEffect;
}

void CSimButton::AddEffect(bool bForeground, const char* szName, bool bLoop) {
    if (!szName || !*szName) {
        LogMsg("ASSERT(FALSE) in %d line of %s", __LINE__, __FILE__);
        return;
    }
    CGui3DEffect* pEffect = EnsureEffect(bForeground);
    if (pEffect->TestEffect(szName)) return;
    pEffect->Add(szName, 1, 1);
    if (bLoop) pEffect->EverPlay(CGui3DEffect::PLAY_FOREVER);
}

void CSimButton::AddBgEffect(const char* szName, bool bLoop) {
    AddEffect(false, szName, bLoop);
}

void CSimButton::AddFgEffect(const char* szName, bool bLoop) {
    AddEffect(true, szName, bLoop);
}

void CSimButton::SetBgEffectOffset(int x, int y) {
    m_nBgEffectOffsetX = x;
    m_nBgEffectOffsetY = y;
}

void CSimButton::SetFgEffectOffset(int x, int y) {
    m_nFgEffectOffsetX = x;
    m_nFgEffectOffsetY = y;
}

void CSimButton::SetSubGround(const char* szTitle) {
    if (szTitle) m_strSubGround = szTitle;
}

// ---- drawing -------------------------------------------------------------------------------------

int CSimButton::Show() {
    if (!IsWindowVisible() || IsHideState()) return 0;
    const RECT rc = GetWindowRect();
    if (m_pBgEffect)
        m_pBgEffect->Show(rc.left + EFFECT_OFFSET_SCALE * m_nBgEffectOffsetX,
                          rc.top + EFFECT_OFFSET_SCALE * m_nBgEffectOffsetY);
    ProcessMouseMove();
    ProcessEffect();
    ProcessTimer();
    AdjustFrame();
    ShowBackGround();
    ShowSubGround();
    if (m_pFgEffect)
        m_pFgEffect->Show(rc.left + EFFECT_OFFSET_SCALE * m_nFgEffectOffsetX,
                          rc.top + EFFECT_OFFSET_SCALE * m_nFgEffectOffsetY);
    ShowWindowText();
    return 1;
}

void CSimButton::ShowSubGround() {
    if (m_strSubGround.IsEmpty()) return;
    CMyAni* pAni = QueryMyAniMgr()->QueryAni(CONTROL_ANI_FILE, m_strSubGround.c_str());
    if (!pAni) return;
    const RECT rc = GetWindowRect();
    if (pAni->GetFrameAmount() > 0)
        pAni->Show(0, rc.left + m_nSubGroundOffsetX, rc.top + m_nSubGroundOffsetY);
    pAni->Release();
}
