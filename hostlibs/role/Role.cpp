// Our role library's figure: deterministic on the virtual clock (actions have lengths from host data
// "action.ID", idle loops, an ended action falls back to idle), drawn as a labelled silhouette.
#include <algorithm>
#include <string>

#include "Graphics.h"
#include "Role.h"
#include "gamebase/SceneOrigin.h"
#include "gamedata/RoleCreateRecords.h"
#include "hostlibs/HostEnv.h"

namespace {
constexpr DWORD FRAME_MS = 33;
constexpr int DEFAULT_ACTION_MS = 1000;
constexpr int IDLE_LOOP_MS = 2000;
constexpr int BODY_WIDTH = 60;
constexpr int BODY_HEIGHT = 160;
constexpr int HEAD_SIZE = 34;
constexpr int LABEL_LINE = 16;
constexpr DWORD MALE_COLOUR = 0xC0406890;
constexpr DWORD FEMALE_COLOUR = 0xC0904068;
constexpr DWORD LABEL_COLOUR = 0xFFFFFFFF;
constexpr int SEX_MODULO = 10;

int ActionLengthMs(int nAction) {
    const int nDefault = nAction == ROLE_ACTION_IDLE ? IDLE_LOOP_MS : DEFAULT_ACTION_MS;
    return std::max(1, host::GetDataInt("action." + std::to_string(nAction), nDefault));
}
} // namespace

struct CRole::SImpl {
    int nLook = 0;
    bool bBody = false;
    int nAction = ROLE_ACTION_NONE;
    DWORD dwActionStart = 0;
    int nFrame = 0;
    int nShownAction = 0;
    int nShownFrame = 0;
    double dScale = 1.0;
};

CRole::CRole() : m_pImpl(std::make_unique<SImpl>()) {
}
CRole::~CRole() = default;

bool CRole::Create(int nLook, int, bool, int) {
    m_pImpl->nLook = nLook;
    m_pImpl->bBody = true;
    m_pImpl->nAction = ROLE_ACTION_NONE;
    m_pImpl->nFrame = 0;
    host::Journal("role.create", {{"look", std::to_string(nLook)}});
    return true;
}

void CRole::SetHeroSelf(int nSelf) {
    host::Count("role.heroself." + std::to_string(nSelf));
}

void CRole::ResetActionData(bool, bool) {
    host::Count("role.resetaction");
}

void CRole::PlayAction(int nAction, int, int, int, int, int, int, int, int, int) {
    m_pImpl->nAction = nAction;
    m_pImpl->dwActionStart = TimeGet();
    m_pImpl->nFrame = 0;
    host::Journal("role.play",
                  {{"action", std::to_string(nAction)}, {"look", std::to_string(m_pImpl->nLook)}});
}

void CRole::Process(int) {
    SImpl& role = *m_pImpl;
    if (role.nAction == ROLE_ACTION_NONE) return;
    const DWORD dwElapsed = TimeGet() - role.dwActionStart;
    const DWORD dwLength = static_cast<DWORD>(ActionLengthMs(role.nAction));
    if (role.nAction == ROLE_ACTION_IDLE) {
        role.nFrame = static_cast<int>((dwElapsed % dwLength) / FRAME_MS);
        return;
    }
    if (dwElapsed >= dwLength) {
        role.nAction = ROLE_ACTION_IDLE;
        role.dwActionStart = TimeGet();
        role.nFrame = 0;
        host::Journal("role.idle", {{"look", std::to_string(role.nLook)}});
        return;
    }
    role.nFrame = static_cast<int>(dwElapsed / FRAME_MS);
}

int CRole::GetCurAction() const {
    return m_pImpl->nAction;
}

int CRole::GetFrameIndex() const {
    return m_pImpl->nFrame;
}

bool CRole::HasBody() const {
    return m_pImpl->bBody;
}

void CRole::SetBodyPart(int nPart, int nValue) {
    if (nPart == 8) m_pImpl->nShownFrame = nValue; // part 8 is the frame shown
    host::Count("role.part");
}

void CRole::PlaceBody(int, int, int, int, double dScale) {
    m_pImpl->dScale = dScale;
}

void CRole::SetBodyAction(int nAction, int, int, int, int, int, int) {
    m_pImpl->nShownAction = nAction;
}

void CRole::SetBodyLight(int, double, double, double, double, double, double, double) {
    host::Count("role.light");
}

void CRole::DrawBody(int x, int y) {
    host::Count("role.draw");
    const SImpl& role = *m_pImpl;
    const POINT origin = gamebase::SceneOrigin();
    const int nCenterX = origin.x;
    const int nCenterY = origin.y;
    const int nKey = gamedata::KeyOfLook(role.nLook);
    const int nSex = nKey % SEX_MODULO;
    const double dScale = std::clamp(role.dScale, 0.1, 4.0);
    const int nWidth = static_cast<int>(BODY_WIDTH * dScale);
    const int nHeight = static_cast<int>(BODY_HEIGHT * dScale);
    const int nHead = static_cast<int>(HEAD_SIZE * dScale);
    const int cx = nCenterX + x;
    const int bottom = nCenterY + y + nHeight / 2;
    const DWORD dwColour = nSex == 2 ? FEMALE_COLOUR : MALE_COLOUR;
    CMyBitmap::ShowBlock(RECT{cx - nHead / 2, bottom - nHeight - nHead, cx + nHead / 2, bottom - nHeight},
                         dwColour);
    CMyBitmap::ShowBlock(RECT{cx - nWidth / 2, bottom - nHeight, cx + nWidth / 2, bottom}, dwColour);
    const std::string lines[] = {
        "look " + std::to_string(role.nLook),
        "prof " + std::to_string(nKey - nSex) + " sex " + std::to_string(nSex),
        "act " + std::to_string(role.nShownAction) + " f " + std::to_string(role.nShownFrame),
    };
    int nLineY = bottom - nHeight - nHead - LABEL_LINE * 3 - 4; // above the head: the ground lies below
    for (const std::string& line : lines) {
        const int nTextWidth = CMyBitmap::GetStringWidth(line.c_str(), 14);
        CMyBitmap::ShowString(cx - nTextWidth / 2, nLineY, LABEL_COLOUR, line.c_str(), nullptr, 14);
        nLineY += LABEL_LINE;
    }
}

void NotifyMyShell(int nMsg, int nParam, void* pData, int nSize) {
    host::Journal("role.notifyshell", {{"msg", std::to_string(nMsg)},
                                       {"param", std::to_string(nParam)},
                                       {"data", pData ? "set" : "none"},
                                       {"size", std::to_string(nSize)}});
}
