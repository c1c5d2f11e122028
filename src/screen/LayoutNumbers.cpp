// Layout numbers from the string table: decimal numbers separated by blanks ("%d %d", "%d %d %d %d").
#include "screen/LayoutNumbers.h"

#include "platform/Log.h"
#include "resources/TextScan.h"
#include "screen/ScreenContext.h"

int ReadLayoutNumbers(std::uint32_t nId, std::span<int> out, const char* szFile, int nLine) {
    IScreenContext* pContext = ScreenContext();
    if (!pContext || !pContext->HasStr(nId)) {
        LogLocalErrMsg("sscanf_s source NULL !!! line %d file %s", nLine, _log::CutFileName(szFile));
        return 0;
    }
    const auto numbers = textscan::ReadInts(pContext->GetStr(nId), out.size());
    for (std::size_t i = 0; i < numbers.size(); ++i) out[i] = numbers[i];
    return static_cast<int>(numbers.size());
}
