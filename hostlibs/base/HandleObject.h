// The common base of the objects behind the base library's handles, so that CloseHandle ends any of them.
#pragma once

namespace host::detail {

class CHandleObject {
public:
    CHandleObject() = default;
    virtual ~CHandleObject() = default;
    CHandleObject(const CHandleObject&) = delete;
    CHandleObject& operator=(const CHandleObject&) = delete;
};

} // namespace host::detail
