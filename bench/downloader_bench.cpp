// The keyboard-picture download of 64 KB from a server on 127.0.0.1: the downloader (its worker thread, the
// WinINet-shaped reads of 1024 bytes, the file, the posted message) against bare libcurl writing the same
// file.
#include <benchmark/benchmark.h>
#include <curl/curl.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "LoopbackHttpServer.h"
#include "TempClientDir.h"
#include "resources/HttpImgDown.h"

namespace {
constexpr std::size_t BODY_BYTES = 64 * 1024;

LoopbackHttpServer& Server() {
    static LoopbackHttpServer server;
    static const bool bReady = [] {
        ::setenv("no_proxy", "127.0.0.1", 1);
        server.SetReply({200, std::string(BODY_BYTES, 'k')});
        return true;
    }();
    (void)bReady;
    return server;
}

void BM_DownloaderLoopback64K(benchmark::State& state) {
    TempClientDir dir;
    std::filesystem::create_directories(dir.Path() / "data");
    const std::string url = Server().Url();
    CHttpImgDown downloader;
    for (auto _ : state) {
        downloader.Start(nullptr, url.c_str());
        downloader.WaitForWorkers();
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * BODY_BYTES));
}
BENCHMARK(BM_DownloaderLoopback64K)->Unit(benchmark::kMicrosecond)->UseRealTime();

std::size_t WriteToFile(char* pData, std::size_t nSize, std::size_t nCount, void* pFile) {
    return std::fwrite(pData, nSize, nCount, static_cast<std::FILE*>(pFile));
}

void BM_BareCurlLoopback64K(benchmark::State& state) {
    TempClientDir dir;
    const std::string path = (dir.Path() / "softkey.jpg").string();
    const std::string url = Server().Url();
    curl_global_init(CURL_GLOBAL_DEFAULT);
    for (auto _ : state) {
        CURL* pEasy = curl_easy_init();
        std::FILE* fp = std::fopen(path.c_str(), "wb");
        curl_easy_setopt(pEasy, CURLOPT_URL, url.c_str());
        curl_easy_setopt(pEasy, CURLOPT_WRITEFUNCTION, &WriteToFile);
        curl_easy_setopt(pEasy, CURLOPT_WRITEDATA, fp);
        curl_easy_perform(pEasy);
        std::fclose(fp);
        curl_easy_cleanup(pEasy);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * BODY_BYTES));
}
BENCHMARK(BM_BareCurlLoopback64K)->Unit(benchmark::kMicrosecond)->UseRealTime();
} // namespace

BENCHMARK_MAIN();
