// Layout numbers from the string table: decimal numbers separated by blanks ("%d %d", "%d %d %d %d").
#pragma once

#include <cstdint>
#include <span>

/// Reads up to out.size() numbers from string nId into out (unread ones stay as they are). A missing entry
/// logs "sscanf_s source NULL !!!" with the caller's line and file. Returns how many numbers were read.
int ReadLayoutNumbers(std::uint32_t nId, std::span<int> out, const char* szFile, int nLine);

#define READ_LAYOUT_NUMBERS(id, out) ReadLayoutNumbers((id), (out), __FILE__, __LINE__)
