// Progress bars: range, value and the filled part.
#include "LuProgress.h"

#include <algorithm>

#include "FrameCount.h"
#include "GameGraphic.h"
#include "Graphics.h"

namespace LuGui {

void CLuProgress::PreSetParam(int nMin, int nMax, int nStep, int nPos, const char* szFillAni, int,
                              const void*) {
    m_nMin = nMin;
    m_nMax = nMax;
    m_strFillAni = szFillAni ? szFillAni : "";
    SetPos(nPos);
}

void CLuProgress::SetPos(int nPos) {
    m_nPos = m_nMax > m_nMin ? std::clamp(nPos, m_nMin, m_nMax) : m_nMin;
}

int CLuProgress::GetFilledWidth() const {
    if (m_nMax <= m_nMin) return 0;
    const long long nSpan = static_cast<long long>(m_nMax) - m_nMin;
    return static_cast<int>(static_cast<long long>(GetWidth()) * (m_nPos - m_nMin) / nSpan);
}

int CLuProgress::Show() {
    if (!m_bVisible || m_bHideState) return 0;
    ProcessMouseMove();
    m_nCurFrame = 0;
    ShowBackGround();
    const RECT rc = GetWindowRect();
    const RECT rcFilled{rc.left, rc.top, rc.left + GetFilledWidth(), rc.bottom};
    if (rcFilled.right > rcFilled.left) {
        if (!m_strFillAni.empty())
            CGameGraphic::ShowAniRect(m_strBgAniFile.c_str(), m_strFillAni.c_str(), 0, rcFilled);
        else if (BackGroundFrameCount(*this) > 1)
            CGameGraphic::ShowAniRect(m_strBgAniFile.c_str(), m_strBgAni.c_str(), 1, rcFilled);
        else
            CMyBitmap::ShowBlock(rcFilled, m_dwFontColor);
    }
    ShowWindowText();
    return 1;
}

} // namespace LuGui
