// Our game data library's data objects, driven by host data (see docs/HOSTDATA.md) and recording what they
// are told.
#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

#include "BaseLib.h"
#include "GameData.h"
#include "RoleCreateRecords.h"
#include "hostlibs/HostEnv.h"
#include "text/WholeInts.h"

namespace {
constexpr std::size_t RECORD_NUMBERS = 4;

class CRoleData final : public IRoleData {
public:
    void PlaySoundByName(const char* szName) override {
        host::Journal("gamedata.sound", {{"name", szName ? szName : ""}});
    }
    bool GetCreateRecord(int nKey, SRoleCreateRecord& record) override {
        return gamedata::FindCreateRecord(nKey, record);
    }
};

class CRoleDataEn final : public IRoleDataEn {
public:
    void SetPlatformModeB(WORD wOn) override {
        host::Journal("gamedata.platformb", {{"value", std::to_string(wOn)}});
    }
    int GetSetting(const char* szKey, int nFallback) override {
        return host::GetDataInt(std::string("setting.") + (szKey ? szKey : ""), nFallback);
    }
    void SetSetting(const char* szKey, int nValue) override {
        const std::string key = szKey ? szKey : "";
        host::SetData("setting." + key, std::to_string(nValue));
        host::Journal("gamedata.setting", {{"key", key}, {"value", std::to_string(nValue)}});
    }
    bool IsInputFlagSet() override { return host::GetDataInt("gamedata.inputflag", 0) != 0; }
    void SetWebPageSwitch(int nOn) override {
        host::SetData("gamedata.webswitch", std::to_string(nOn));
        host::Journal("gamedata.webswitch", {{"value", std::to_string(nOn)}});
    }
};

class CRoleDataEx final : public IRoleDataEx {
public:
    const char* GetLanguageName() override {
        m_strLanguage = host::GetData("language", "Chinese");
        return m_strLanguage.c_str();
    }
    bool IsEnglishOnly() override { return host::GetDataInt("englishonly", 0) != 0; }
    const char* MapFontName(const char* szFont) override { return szFont ? szFont : ""; }
    const char* GetStrRes(std::uint32_t nId) override {
        // NOTE: the embedded-browser switch is on in a client that ships the browser, as the sample does.
        constexpr std::uint32_t EMBEDDED_BROWSER_SWITCH = 3001192;
        const std::string key = "strres." + std::to_string(nId);
        m_strRes = host::GetData(key, nId == EMBEDDED_BROWSER_SWITCH ? "1" : "");
        return m_strRes.c_str();
    }
    bool IsNewServer(const char* szServerName) override {
        if (!szServerName || !*szServerName) return false;
        const std::string list = "|" + host::GetData("newservers") + "|";
        return list.find("|" + std::string(szServerName) + "|") != std::string::npos;
    }
    void SetEmbeddedBrowser(bool bOn) override { m_bEmbeddedBrowser = bOn; }
    bool IsEmbeddedBrowser() override { return m_bEmbeddedBrowser; }
    bool IsQRLoginEnabled() override { return host::GetDataInt("gamedata.qrlogin", 0) != 0; }
    bool IsWeChatLoginEnabled() override { return host::GetDataInt("gamedata.wechat", 0) != 0; }
    const char* GetRoleText(std::uint32_t nId) override {
        m_strRoleText = host::GetData("roletext." + std::to_string(nId));
        return m_strRoleText.c_str();
    }
    std::int64_t GetAccountValue() override { return host::GetDataInt("en.account", 0); }

private:
    std::string m_strLanguage;
    std::string m_strRes;
    std::string m_strRoleText;
    bool m_bEmbeddedBrowser = true;
};

class CMyGameDataEn final : public IMyGameDataEn {
public:
    int GetRegisterArg() override { return host::GetDataInt("gamedata.registerarg", 0); }
    bool IsNationalityUsed() override {
        return host::HasData("nationality") && host::GetData("nationality") != "off";
    }
    // "nationality ID PICTURE": the current nationality and its record's picture; an id alone has no record.
    bool GetNationalityPicture(CZrString& strPicture) override {
        if (!IsNationalityUsed()) return false;
        const std::string value = host::GetData("nationality");
        const std::size_t blank = value.find(' ');
        if (blank == std::string::npos || blank + 1 >= value.size()) return false;
        strPicture = CZrString(value.substr(blank + 1));
        return true;
    }
};
class CMyGameData final : public IMyGameData {
    static constexpr const char* RECORD_FILE = "ini/GameData.ini";
    static constexpr const char* RECORD_SECTION = "WindowRecord";
    static constexpr std::size_t RECORD_TEXT_LIMIT = 64;

public:
    bool GetWindowRecord(int nId, RECT& rcOut) override {
        const std::string key = "layout." + std::to_string(nId);
        std::string text;
        if (host::HasData(key)) {
            text = host::GetData(key);
        } else {
            // The client directory's own records, below what the host sets.
            char buffer[RECORD_TEXT_LIMIT] = {};
            MyGetPrivateProfileString(RECORD_SECTION, std::to_string(nId).c_str(), "", buffer, sizeof buffer,
                                      RECORD_FILE);
            text = buffer;
        }
        if (text.empty()) return false;
        int values[RECORD_NUMBERS] = {0, 0, 0, 0};
        if (!txt::ReadWholeInts(text, values, ' ')) return false;
        const auto add = [](long long a, long long b) {
            return static_cast<LONG>(std::clamp<long long>(a + b, INT32_MIN, INT32_MAX));
        };
        rcOut = RECT{values[0], values[1], add(values[0], values[2]), add(values[1], values[3])};
        return true;
    }
};
} // namespace

IMyGameData* MyGameDataQuery() {
    static CMyGameData data;
    return &data;
}

IRoleData* RoleDataQuery() {
    static CRoleData data;
    return &data;
}

IRoleDataEn* RoleDataQueryEn() {
    static CRoleDataEn data;
    return &data;
}

IRoleDataEx* RoleDataQueryEx() {
    static CRoleDataEx data;
    return &data;
}

IMyGameDataEn* MyGameDataEnQuery() {
    static CMyGameDataEn data;
    return &data;
}
