// Images: animation file by kind, face fallback, stretched or natural drawing, and the localised text layer.
#include "controls/SimImage.h"

#include <cstring>

#include "platform/GameDataSet.h"
#include "platform/GameGraphic.h"

namespace {

constexpr const char* NO_TITLE = "NULL";
constexpr const char* EMPTY_FACE_TITLE = "Face0";
constexpr const char* FACE_TITLE_FORMAT = "Face%d";
constexpr int FALLBACK_FACE = 510001;
constexpr int ANI_LOAD_MODE = 1;
constexpr int ANI_LOAD_TIMEOUT_MS = 30000;

const char* AniFileOfKind(EImageKind eKind) {
    switch (eKind) {
    case IMAGE_PLAYER_FACE:
        return "ani/playerface.ani";
    case IMAGE_PLAYER_MODEL_FACE:
        return "ani/PlayerModelFace.Ani";
    case IMAGE_CONTROL:
        break;
    }
    return "ani/control.ani";
}

bool IsTitleGiven(const char* szTitle) {
    return szTitle && std::strcmp(szTitle, NO_TITLE) != 0;
}

CMyAni* LoadAni(const char* szFile, const char* szTitle) {
    return GameDataSetQuery()->GetDataAni(szFile, szTitle, ANI_LOAD_MODE, ANI_LOAD_TIMEOUT_MS, 0);
}

} // namespace

CSimImage::CSimImage() : m_strAniFile(AniFileOfKind(IMAGE_CONTROL)) {
}

CSimImage::~CSimImage() = default;

void CSimImage::SetCurFrame(int nFrame) {
    LuGui::CLuImage::SetCurFrame(nFrame);
    m_usFrame = static_cast<std::uint16_t>(nFrame);
}

void CSimImage::InitImage(const char* szTitle, EImageKind eKind, const char* szBackground) {
    m_eKind = eKind;
    if (IsTitleGiven(szBackground)) {
        SetBackGroundAni(szBackground);
        EnableBackGround(true);
    }
    m_strAniFile = AniFileOfKind(eKind);
    if (IsTitleGiven(szTitle)) m_strAniTitle = szTitle;
}

void CSimImage::SetAniTitle(const char* szTitle, bool bStretch) {
    m_bStretch = bStretch;
    const bool bFace = m_eKind == IMAGE_PLAYER_FACE || m_eKind == IMAGE_PLAYER_MODEL_FACE;
    if (bFace && IsTitleGiven(szTitle)) m_strAniTitle = szTitle;
}

void CSimImage::DrawImage() {
    if (!IsWindowVisible()) return;
    if (m_eKind == IMAGE_PLAYER_FACE && m_strAniTitle == EMPTY_FACE_TITLE) return;
    const RECT rc = GetWindowRect();
    const POINT offset = GetDrawOffset();
    const int x = rc.left + offset.x;
    const int y = rc.top + offset.y;

    CZrString strTitle = m_strAniTitle;
    CMyAni* pAni = LoadAni(m_strAniFile.c_str(), strTitle.c_str());
    if (!pAni && m_eKind == IMAGE_PLAYER_FACE) {
        char szFace[32];
        SafeSprintf(szFace, sizeof szFace, FACE_TITLE_FORMAT, FALLBACK_FACE);
        strTitle = szFace;
        pAni = LoadAni(m_strAniFile.c_str(), strTitle.c_str());
    }
    if (!pAni) return;
    if (m_bStretch)
        pAni->ShowStretch(m_usFrame, RECT{x, y, x + GetWidth(), y + GetHeight()});
    else
        pAni->Show(m_usFrame, x, y, 1.0f, 1.0f);
    pAni->Release();
    // The text layer follows the picture: stretched with it, else at its own natural size.
    CGameGraphic::ShowStrresUI(m_bStretch ? GetWidth() : 0, m_bStretch ? GetHeight() : 0, x, y,
                               strTitle.c_str(), m_usFrame, m_strAniFile.c_str());
}
