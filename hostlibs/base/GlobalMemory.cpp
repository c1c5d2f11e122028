// Global memory blocks of the system, with a host switch that makes locking fail (to exercise the callers'
// failure paths).
#include <cstdlib>
#include <new>

#include "GlobalMemory.h"
#include "hostlibs/HostEnv.h"

namespace {
struct Block {
    std::size_t nBytes;
    int nLocks = 0;
    unsigned char* pBytes;
};
} // namespace

HGLOBAL GlobalAlloc(UINT, std::size_t nBytes) {
    auto* pBlock = new (std::nothrow) Block{nBytes, 0, nullptr};
    if (!pBlock) return nullptr;
    pBlock->pBytes = static_cast<unsigned char*>(std::calloc(nBytes ? nBytes : 1, 1));
    if (!pBlock->pBytes) {
        delete pBlock;
        return nullptr;
    }
    return pBlock;
}

void* GlobalLock(HGLOBAL hMem) {
    auto* pBlock = static_cast<Block*>(hMem);
    if (!pBlock || host::GetDataInt("memory.lockfail", 0) != 0) return nullptr;
    ++pBlock->nLocks;
    return pBlock->pBytes;
}

BOOL GlobalUnlock(HGLOBAL hMem) {
    auto* pBlock = static_cast<Block*>(hMem);
    if (!pBlock || pBlock->nLocks == 0) return FALSE;
    return --pBlock->nLocks > 0 ? TRUE : FALSE;
}

HGLOBAL GlobalFree(HGLOBAL hMem) {
    auto* pBlock = static_cast<Block*>(hMem);
    if (!pBlock) return nullptr;
    std::free(pBlock->pBytes);
    delete pBlock;
    return nullptr;
}
