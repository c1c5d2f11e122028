// The GUI effect object (CGui3DEffect): named effects played by the host clock inside a show rectangle.
#pragma once

#include <string>
#include <vector>

#include "Gui3DEffect.h"

namespace gfx {

class Gui3DEffectSet final : public CGui3DEffect {
public:
    /// How long one play of an effect without an animation lasts.
    static constexpr DWORD PLACEHOLDER_PLAY_MS = 1000;
    /// Outline colour of an effect without an animation.
    static constexpr DWORD PLACEHOLDER_COLOUR = 0xC0FFC800;
    /// Effects per object; adding beyond is refused.
    static constexpr std::size_t MAX_EFFECTS = 64;

    bool Add(const char* szName, int nPlayCount, int nReserved) override;
    bool Delete(const char* szName) override;
    void Clear() override { m_effects.clear(); }
    bool TestEffect(const char* szName) const override;
    void EverPlay(int nPlayCount) override;
    void SetShowRect(const RECT& rc) override { m_showRect = rc; }
    RECT GetShowRect() const override { return m_showRect; }
    void Show(int x, int y) override;
    int GetAmount() const override { return static_cast<int>(m_effects.size()); }
    void Release() override { delete this; }

private:
    ~Gui3DEffectSet() override = default;

    struct Effect {
        std::string name;
        DWORD startMs = 0;
        int playCount = 1; ///< below 0: for ever
    };
    std::vector<Effect>::iterator Find(const char* szName);
    std::vector<Effect>::const_iterator Find(const char* szName) const;
    void ShowEffect(const Effect& effect, int x, int y) const;

    std::vector<Effect> m_effects;
    RECT m_showRect{0, 0, 0, 0};
};

} // namespace gfx
