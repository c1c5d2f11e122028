// Effects as animations of the effect index, timed by the host clock so that tests drive them without
// sleeping.
#include "Gui3DEffectSet.h"

#include <algorithm>
#include <cstring>

#include "AniCache.h"
#include "AniHandle.h"
#include "GraphicsState.h"

namespace gfx {
namespace {
bool SameName(const std::string& name, const char* szName) {
    return szName && name == szName;
}

// Whether an effect started at startMs, playing count times of lengthMs each, still plays at nowMs.
bool StillPlaying(DWORD startMs, int count, DWORD lengthMs, DWORD nowMs) {
    if (count < 0) return true;
    const unsigned long long elapsed = static_cast<DWORD>(nowMs - startMs);
    return elapsed < static_cast<unsigned long long>(lengthMs) * static_cast<unsigned>(std::max(count, 1));
}
} // namespace

std::vector<Gui3DEffectSet::Effect>::iterator Gui3DEffectSet::Find(const char* szName) {
    return std::find_if(m_effects.begin(), m_effects.end(),
                        [&](const Effect& e) { return SameName(e.name, szName); });
}

std::vector<Gui3DEffectSet::Effect>::const_iterator Gui3DEffectSet::Find(const char* szName) const {
    return std::find_if(m_effects.begin(), m_effects.end(),
                        [&](const Effect& e) { return SameName(e.name, szName); });
}

bool Gui3DEffectSet::Add(const char* szName, int nPlayCount, int) {
    if (!szName || !*szName) return false;
    if (Find(szName) != m_effects.end()) return true;
    if (m_effects.size() >= MAX_EFFECTS) return false;
    m_effects.push_back({szName, TimeGet(), nPlayCount < 0 ? nPlayCount : std::max(nPlayCount, 1)});
    return true;
}

bool Gui3DEffectSet::Delete(const char* szName) {
    const auto it = Find(szName);
    if (it == m_effects.end()) return false;
    m_effects.erase(it);
    return true;
}

bool Gui3DEffectSet::TestEffect(const char* szName) const {
    return Find(szName) != m_effects.end();
}

void Gui3DEffectSet::EverPlay(int nPlayCount) {
    for (Effect& effect : m_effects) effect.playCount = nPlayCount;
}

void Gui3DEffectSet::ShowEffect(const Effect& effect, int x, int y) const {
    const DWORD now = TimeGet();
    const int width = m_showRect.right - m_showRect.left;
    const int height = m_showRect.bottom - m_showRect.top;
    ICanvas& canvas = GraphicsState::Instance().Canvas();
    const AniHandle* ani = AniCache::Instance().Animation(GUI_EFFECT_ANI_FILE, effect.name);
    if (!ani) {
        if (!StillPlaying(effect.startMs, effect.playCount, PLACEHOLDER_PLAY_MS, now)) return;
        const Rect area{x, y, width, height};
        const CompoundScope scope(canvas, OpBuilder("effect", {x, y, width, height}).Name(effect.name));
        canvas.OutlineRect(area, PLACEHOLDER_COLOUR);
        return;
    }
    const DWORD interval = static_cast<DWORD>(ani->GetInterval());
    const DWORD length = interval * static_cast<DWORD>(ani->GetFrameAmount());
    if (!StillPlaying(effect.startMs, effect.playCount, length, now)) return;
    const int frame =
        static_cast<int>(((now - effect.startMs) / interval) % static_cast<DWORD>(ani->GetFrameAmount()));
    const SIZE size = ani->GetSize(frame);
    const Rect dst{x + (width - size.cx) / 2, y + (height - size.cy) / 2, size.cx, size.cy};
    if (dst.Empty()) return;
    const CompoundScope scope(canvas, OpBuilder("effect", dst).Frame(frame).Name(effect.name));
    ani->DrawFrame(canvas, frame, dst, 255);
}

void Gui3DEffectSet::Show(int x, int y) {
    for (const Effect& effect : m_effects) ShowEffect(effect, ClampCoord(x), ClampCoord(y));
}

} // namespace gfx

CGui3DEffect* GameCreateGui3DEffect() {
    return new gfx::Gui3DEffectSet();
}
