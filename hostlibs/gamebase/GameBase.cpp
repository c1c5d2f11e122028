// Our game base library: the scene camera (journalled when its object changes, frames only counted), 3D
// effects drawn as their GUI-effect animation or a labelled outline, and a map instance.
#include <algorithm>
#include <string>
#include <vector>

#include "GameBase.h"
#include "GameDataSet.h"
#include "Graphics.h"
#include "Gui3DEffect.h"
#include "SceneOrigin.h"
#include "hostlibs/HostEnv.h"

namespace {
constexpr int EFFECT_BOX = 48;
constexpr int GROUND_DROP = 84; // below the scene's origin: where a figure's feet stand
constexpr DWORD EFFECT_OUTLINE = 0xFFE0C040;
constexpr int EFFECT_LABEL_FONT = 12;

class CCamera final : public ICamera {
public:
    // NOTE: previews select their object and go back to 0 every frame; the journal names only a change of
    // the object that films (non-zero), so that "log on" shows state changes, not frames.
    void SetCameraObj(int nObj, bool) override {
        host::Count("camera.obj");
        host::SetData("camera.obj", std::to_string(nObj));
        if (nObj == 0 || nObj == m_nFilming) return;
        m_nFilming = nObj;
        host::Journal("camera.film", {{"obj", std::to_string(nObj)}});
    }
    void SetCameraObjFrame(int nFrame, bool, bool, int, int) override {
        m_nFrame = nFrame;
        host::Count("camera.frame");
        host::SetData("camera.lastframe", std::to_string(nFrame));
    }

private:
    int m_nFilming = 0;
    int m_nFrame = 0;
};

class CGameMap final : public IGameMap {
public:
    void ScreenToCell(int x, int y, int& nCellX, int& nCellY) override {
        host::Count("map.screentocell");
        nCellX = x;
        nCellY = y;
    }
};
} // namespace

ICamera* CameraQuery() {
    static CCamera camera;
    return &camera;
}

IGameMap* IGameMap::GetInstance() {
    static CGameMap map;
    return &map;
}

struct CMyGame3DEffectEx::SImpl {
    std::vector<std::string> names;
    POINT ptOffset{0, 0};
    bool bOffset = false;
    bool bOblique = true;
    double dScale = 1.0;
};

CMyGame3DEffectEx::CMyGame3DEffectEx(bool) : m_pImpl(std::make_unique<SImpl>()) {
}
CMyGame3DEffectEx::~CMyGame3DEffectEx() = default;

void CMyGame3DEffectEx::Clear() {
    if (!m_pImpl->names.empty()) host::Journal("effect3d.clear");
    m_pImpl->names.clear();
}

void CMyGame3DEffectEx::SetOblique(bool bOblique) {
    m_pImpl->bOblique = bOblique;
}

bool CMyGame3DEffectEx::Add(const char* szName) {
    if (!szName || !*szName) return false;
    if (TestEffect(szName)) return true;
    m_pImpl->names.emplace_back(szName);
    host::Journal("effect3d.add", {{"name", szName}});
    return true;
}

void CMyGame3DEffectEx::Scale(double dX, double, double) {
    m_pImpl->dScale = dX;
}

void CMyGame3DEffectEx::SetOffset(int x, int y, int, int) {
    m_pImpl->ptOffset = POINT{x, y};
    m_pImpl->bOffset = true;
    host::Journal("effect3d.offset", {{"x", std::to_string(x)}, {"y", std::to_string(y)}});
}

bool CMyGame3DEffectEx::TestEffect(const char* szName) const {
    return szName && std::find(m_pImpl->names.begin(), m_pImpl->names.end(), szName) != m_pImpl->names.end();
}

int CMyGame3DEffectEx::GetAmount() const {
    return static_cast<int>(m_pImpl->names.size());
}

void CMyGame3DEffectEx::Show(int x, int y, const char* szName) {
    host::Count("effect3d.show");
    // NOTE: without an offset an effect plays at the scene's origin, the camera's centre (the ground under
    // the figure); with one, at that screen point.
    POINT pt{x + m_pImpl->ptOffset.x, y + m_pImpl->ptOffset.y};
    if (!m_pImpl->bOffset) {
        const POINT origin = gamebase::SceneOrigin();
        pt = POINT{origin.x + x, origin.y + y + GROUND_DROP};
    }
    for (const std::string& name : m_pImpl->names) {
        if (szName && name != szName) continue;
        if (CMyAni* pAni = GameDataSetQuery()->GetDataAni(GUI_EFFECT_ANI_FILE, name.c_str())) {
            // Centred on the point, as the scene places an effect.
            const SIZE size = pAni->GetSize(0);
            pAni->Show(pAni->FrameByTime(), pt.x - size.cx / 2, pt.y - size.cy / 2);
            pAni->Release();
            continue;
        }
        const RECT rc{pt.x - EFFECT_BOX / 2, pt.y - EFFECT_BOX / 2, pt.x + EFFECT_BOX / 2,
                      pt.y + EFFECT_BOX / 2};
        CMyBitmap::ShowRect(rc, EFFECT_OUTLINE);
        CMyBitmap::ShowString(rc.left + 2, rc.top + 2, EFFECT_OUTLINE, name.c_str(), nullptr,
                              EFFECT_LABEL_FONT);
    }
}
