// One animation as the animation library hands it out (CMyAni), backed by a title of a cached index.
#pragma once

#include <memory>
#include <string>

#include "AniIndex.h"
#include "Canvas.h"
#include "MyAni.h"

namespace gfx {

class AniHandle final : public CMyAni {
public:
    AniHandle(std::string file, std::shared_ptr<const AniIndex> index, const AniTitle& title);
    ~AniHandle() override = default;

    int GetFrameAmount() const override;
    SIZE GetSize(int nFrame) const override;
    int GetInterval() const override;
    int FrameByTime() const override;
    bool Show(int nFrame, int x, int y, float fScaleX, float fScaleY, int nAlpha) override;
    bool ShowStretch(int nFrame, const RECT& rcDest, int nAlpha) override;
    void Release() override {}
    const char* GetFile() const override { return m_file.c_str(); }
    const char* GetTitle() const override { return m_title.title.c_str(); }

    /// The frame, or null for a number out of range.
    const AniFrame* Frame(int nFrame) const;
    const AniTitle& Title() const { return m_title; }
    /// Draws frame nFrame over dst, recorded as one "ani" operation; false when nothing was drawn.
    bool DrawFrame(ICanvas& canvas, int nFrame, const Rect& dst, int nAlpha) const;

private:
    std::string m_file;
    std::shared_ptr<const AniIndex> m_index; // keeps m_title alive
    const AniTitle& m_title;
};

} // namespace gfx
