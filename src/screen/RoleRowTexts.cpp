// The four texts of one role in the international role lists: name, level, profession and power.
#include "screen/RoleRowTexts.h"

#include <algorithm>

#include "platform/GameLogic.h"
#include "resources/MyString.h"
#include "screen/ScreenContext.h"

namespace {

constexpr char REPLACEMENT = '?';
constexpr int PROFESSION_PER_CODE = 10;

// Length of the well-formed UTF-8 sequence at pos, 0 when the byte there starts none.
std::size_t SequenceLength(std::string_view text, std::size_t pos) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char c = byte(pos);
    if (c < 0x80) return 1;
    std::size_t n = 0;
    unsigned char lo = 0x80, hi = 0xBF; // the second byte's range
    if (c >= 0xC2 && c <= 0xDF) {
        n = 2;
    } else if (c >= 0xE0 && c <= 0xEF) {
        n = 3;
        if (c == 0xE0) lo = 0xA0;
        if (c == 0xED) hi = 0x9F;
    } else if (c >= 0xF0 && c <= 0xF4) {
        n = 4;
        if (c == 0xF0) lo = 0x90;
        if (c == 0xF4) hi = 0x8F;
    } else {
        return 0;
    }
    if (pos + n > text.size()) return 0;
    if (byte(pos + 1) < lo || byte(pos + 1) > hi) return 0;
    for (std::size_t i = 2; i < n; ++i)
        if (byte(pos + i) < 0x80 || byte(pos + i) > 0xBF) return 0;
    return n;
}

} // namespace

std::string SRoleRowTexts::ToCodePage(std::string_view utf8) {
    std::string out;
    for (std::size_t pos = 0; pos < utf8.size();) {
        const std::size_t n = SequenceLength(utf8, pos);
        const std::size_t take = n ? n : 1;
        if (out.size() + take > MAX_NAME_BYTES) break;
        if (n)
            out.append(utf8.substr(pos, n));
        else
            out += REPLACEMENT;
        pos += take;
    }
    return out;
}

int SRoleRowTexts::ProfessionOf(std::int32_t nCode) {
    const long long id = static_cast<long long>(nCode) * PROFESSION_PER_CODE;
    return static_cast<int>(std::clamp<long long>(id, INT32_MIN, INT32_MAX));
}

SRoleRowTexts SRoleRowTexts::Of(const SServerRole& role) {
    SRoleRowTexts texts;
    texts.strName = ToCodePage(role.szName ? role.szName : "");
    const char* szProfession = CPlayer::GetProfessionStr(ProfessionOf(role.nProCode));
    texts.strProfession = szProfession ? szProfession : "";
    if (IScreenContext* pContext = ScreenContext()) {
        texts.strLevel = CMyString::Format(pContext->GetStr(STR_LEVEL_FORMAT), role.nLevel);
        texts.strPower = CMyString::Format(pContext->GetStr(STR_POWER_FORMAT), role.nPower);
    }
    return texts;
}
