// Test entry point: every test runs with a fresh host environment and a log capture that fails on surprises.
#include <gtest/gtest.h>

#include <mutex>

#include "LogCapture.h"

namespace testlog {
namespace {
struct State {
    std::mutex mutex;
    std::vector<host::LogRecord> records;
    std::vector<std::pair<std::string, std::string>> expected;
};
State& S() {
    static State s;
    return s;
}
bool StartsWith(const std::string& s, const std::string& prefix) {
    return s.compare(0, prefix.size(), prefix) == 0;
}
bool IsProblem(const std::string& level) {
    return level == "WARN" || level == "ERROR" || level == "FAULT";
}
} // namespace

const std::vector<host::LogRecord>& Records() {
    return S().records;
}

void Expect(const std::string& level, const std::string& messagePrefix) {
    S().expected.emplace_back(level, messagePrefix);
}

int Count(const std::string& level, const std::string& messagePrefix) {
    std::lock_guard lock(S().mutex);
    int n = 0;
    for (const auto& r : S().records)
        if ((level.empty() || r.level == level) && StartsWith(r.message, messagePrefix)) ++n;
    return n;
}

std::string Key(const host::LogRecord& record, const std::string& key) {
    for (const auto& [k, v] : record.keys)
        if (k == key) return v;
    return {};
}

namespace {
class CaptureListener : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override {
        host::ResetForTest();
        std::lock_guard lock(S().mutex);
        S().records.clear();
        S().expected.clear();
        host::SetLogSink([](const host::LogRecord& r) {
            std::lock_guard inner(S().mutex);
            S().records.push_back(r);
        });
    }
    void OnTestEnd(const testing::TestInfo&) override {
        host::SetLogSink({});
        for (const auto& r : S().records) {
            if (!IsProblem(r.level)) continue;
            bool declared = false;
            for (const auto& [level, prefix] : S().expected)
                if (level == r.level && StartsWith(r.message, prefix)) declared = true;
            if (!declared) ADD_FAILURE() << "undeclared " << r.level << " line: " << r.message;
        }
    }
};
} // namespace
} // namespace testlog

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(new testlog::CaptureListener);
    return RUN_ALL_TESTS();
}
