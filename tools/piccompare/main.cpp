// piccompare GOLDEN ACTUAL [--diff FILE]: exits 0 when ACTUAL matches GOLDEN within the tolerance, 1 when it
// does not, 2 when a picture cannot be read; prints a one-line summary and, with --diff, writes ACTUAL with
// the differing pixels in red.
#include <cstdio>
#include <cstring>
#include <string>

#include "PictureDiff.h"
#include "PngFile.h"

namespace {
int Usage() {
    std::fprintf(
        stderr,
        "usage: piccompare GOLDEN ACTUAL [--diff FILE]\n"
        "  a pixel differs when a channel differs by more than %d; the pictures match while at most\n"
        "  %d pixels differ\n",
        PictureDiff::CHANNEL_TOLERANCE, PictureDiff::ALLOWED_PIXELS);
    return 2;
}
} // namespace

int main(int argc, char** argv) {
    if (argc != 3 && !(argc == 5 && std::strcmp(argv[3], "--diff") == 0)) return Usage();
    RgbaPicture golden, actual;
    std::string error;
    if (!PngFile::Read(argv[1], golden, error) || !PngFile::Read(argv[2], actual, error)) {
        std::fprintf(stderr, "piccompare: %s\n", error.c_str());
        return 2;
    }
    const PictureDiff diff(golden, actual);
    std::printf("%s: %s\n", argv[2], diff.Summary().c_str());
    if (argc == 5 && diff.DifferingPixels() > 0 && !PngFile::Write(argv[4], diff.Marked(), error)) {
        std::fprintf(stderr, "piccompare: %s\n", error.c_str());
        return 2;
    }
    return diff.Matches() ? 0 : 1;
}
