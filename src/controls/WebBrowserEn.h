// The embedded web browser that the web registration dialog hosts.
#pragma once

class CWebBrowserEn {
public:
    CWebBrowserEn();
    ~CWebBrowserEn();
    CWebBrowserEn(const CWebBrowserEn&) = delete;
    CWebBrowserEn& operator=(const CWebBrowserEn&) = delete;
};
