// Downloads one address into "data/softkey.jpg" on a worker thread of its own and tells the requesting window
// the outcome with a posted message.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/LuBaseWindow.h"
#include "resources/ImgDownTransport.h"

class CHttpImgDown {
public:
    /// Posted to the target window at the end: first parameter 1 success, 0 failure; second parameter 0.
    static constexpr UINT WM_IMG_DOWNLOADED = 12135;
    static constexpr const char* AGENT = "MyAgent";
    static constexpr const char* FILE_NAME = "data/softkey.jpg";
    /// Bytes read and written at a time.
    static constexpr DWORD READ_SIZE = 1024;

    /// On the platform's WinINet and files.
    CHttpImgDown();
    /// On other operations (tests); the transport must outlive the downloader.
    explicit CHttpImgDown(IImgDownTransport& transport);
    /// Ends every running worker's transfer, waits for the workers, and posts nothing more.
    virtual ~CHttpImgDown();
    CHttpImgDown(const CHttpImgDown&) = delete;
    CHttpImgDown& operator=(const CHttpImgDown&) = delete;

    /// The window that receives the completion message; null: nothing is posted.
    void SetNotifyWnd(LuGui::CLuBaseWindow* pWnd);
    /// Sets the target, stores a non-null address, and starts a worker that fetches the stored address.
    /// Returns at once.
    void Start(LuGui::CLuBaseWindow* pWnd, const char* szUrl);
    /// The stored address; null while it is empty.
    const char* GetUrl() const { return m_strUrl.empty() ? nullptr : m_strUrl.c_str(); }

    /// Blocks until every worker started so far has ended.
    void WaitForWorkers();

    /// What a worker shares with its downloader (defined in the source).
    struct SShared;

private:
    /// Closes the handles of the workers that have ended.
    void ReapEndedWorkers();

    std::shared_ptr<SShared> m_pShared;
    std::string m_strUrl;
    std::vector<HANDLE> m_vecWorkers;
};
