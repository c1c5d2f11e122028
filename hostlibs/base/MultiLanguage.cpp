// The client's language table, from host data ("languages", "language.index"); a language change is recorded.
#include "BaseLib.h"
#include "hostlibs/HostEnv.h"

CMultiLanguage g_objMultiLang;

const std::vector<SLanguageInfo>& CMultiLanguage::Infos() {
    // "languages" lists "index:name" pairs separated by "|"; the table follows the host data each time.
    m_vecInfos.clear();
    std::vector<CZrString> entries;
    Split(entries, host::GetData("languages", "0:中文|1:English").c_str(), "|", 65001);
    for (const CZrString& entry : entries) {
        const std::string text = entry.c_str();
        const auto colon = text.find(':');
        if (colon == std::string::npos) continue;
        m_vecInfos.push_back(SLanguageInfo{SafeAtoi(text.substr(0, colon).c_str()), text.substr(colon + 1)});
    }
    return m_vecInfos;
}

int CMultiLanguage::GetCurIndex() {
    const int nLanguage = host::GetDataInt("language.index", 0);
    const std::vector<SLanguageInfo>& infos = Infos();
    for (std::size_t i = 0; i < infos.size(); ++i)
        if (infos[i].nIndex == nLanguage) return static_cast<int>(i);
    return 0;
}

const SLanguageInfo* CMultiLanguage::GetInfo(int nPos) {
    const std::vector<SLanguageInfo>& infos = Infos();
    return nPos >= 0 && nPos < static_cast<int>(infos.size()) ? &infos[static_cast<std::size_t>(nPos)]
                                                              : nullptr;
}

void CMultiLanguage::SetInfo(const SLanguageInfo* pInfo) {
    if (!pInfo) return;
    host::SetData("language.index", std::to_string(pInfo->nIndex));
    host::Journal("base.language",
                  {{"index", std::to_string(pInfo->nIndex)}, {"name", pInfo->strName.c_str()}});
}
