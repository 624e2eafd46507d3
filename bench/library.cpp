// Measures small operations and their peers: NAME is our code, NAME/PEER what it is compared with.

#include <benchmark/benchmark.h>
#include <spdlog/sinks/basic_file_sink.h>
#include <spdlog/spdlog.h>
#include <unicode/unorm2.h>
#include <unicode/ustring.h>

#include <QString>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <mutex>
#include <string>
#include <vector>

#include "bench/operations.h"

namespace {

using operations::kDecomposed;
using operations::kFolder;
using operations::kName;

template <typename Operation>
void Add(const char* name, Operation operation) {
    benchmark::RegisterBenchmark(name, [operation](benchmark::State& state) {
        for (auto _ : state) {
            operation();
        }
    });
}

// == Log lines

void AddLog(const std::string& spdlog_file) {
    const auto logger = spdlog::basic_logger_mt("bench", spdlog_file);
    logger->set_pattern("%b %d %H:%M:%S %v");
    logger->flush_on(spdlog::level::trace);
    Add("LogWritten", operations::WriteLogLine);
    Add("LogWritten/spdlog", [logger] {
        logger->error("[ERROR] bench({}): failed to backup app from '{}' -> '{}' ({})", __LINE__,
                      kFolder, kName, 17);
    });
    Add("LogDropped", operations::DropLogLine);
    // The least that thresholds by component cost if any thread may change them: a lock, a lookup.
    Add("LogDropped/lookup", [thresholds = std::map<std::string, int>{{"default_component", 4},
                                                                      {"file_op_debug", 4},
                                                                      {"launcher_debug", 4},
                                                                      {"service_debug", 4}},
                              component = std::string("bench_debug")] {
        static std::mutex mutex;
        const std::lock_guard<std::mutex> lock(mutex);
        const auto entry = thresholds.find(component);
        benchmark::DoNotOptimize(entry == thresholds.end() ? 4 : entry->second);
    });
}

// == Strings

template <typename String, typename Separator>
void AddJoin(const char* name, Separator separator) {
    Add(name, [separator, folder = String(kFolder), file = String(kName)] {
        benchmark::DoNotOptimize(operations::JoinPath(folder, separator, file));
    });
}

void AddStrings() {
    Add("FromUtf8", [] { benchmark::DoNotOptimize(ustring(kFolder)); });
    Add("FromUtf8/QString", [] { benchmark::DoNotOptimize(QString::fromUtf8(kFolder)); });
    AddJoin<ustring>("Join", "/");
    AddJoin<QString>("Join/QString", QStringLiteral("/"));
}

// Composes a UTF-8 path with ICU alone: converts it to UTF-16, composes it and converts it back.
// Each step calls ICU twice: for the size and for the text.
std::vector<char> ComposeWithIcu() {
    UErrorCode error = U_ZERO_ERROR;
    const UNormalizer2* const nfc = unorm2_getNFCInstance(&error);
    int32_t size = 0;
    u_strFromUTF8(nullptr, 0, &size, kDecomposed, -1, &error);
    std::vector<UChar> source(static_cast<std::size_t>(size) + 1);
    error = U_ZERO_ERROR;
    u_strFromUTF8(source.data(), size + 1, nullptr, kDecomposed, -1, &error);
    size = unorm2_normalize(nfc, source.data(), -1, nullptr, 0, &error);
    std::vector<UChar> composed(static_cast<std::size_t>(size) + 1);
    error = U_ZERO_ERROR;
    unorm2_normalize(nfc, source.data(), -1, composed.data(), size + 1, &error);
    u_strToUTF8(nullptr, 0, &size, composed.data(), -1, &error);
    std::vector<char> path(static_cast<std::size_t>(size) + 1);
    error = U_ZERO_ERROR;
    u_strToUTF8(path.data(), size + 1, nullptr, composed.data(), -1, &error);
    return path;
}

void AddCompose() {
    Add("Compose", [] { benchmark::DoNotOptimize(operations::ComposePath()); });
    Add("Compose/icu", [] { benchmark::DoNotOptimize(ComposeWithIcu()); });
}

}  // namespace

// The environment variable BENCH_LOG must name the log file.
int main(int argc, char** argv) {
    const char* const log = std::getenv("BENCH_LOG");
    if (log == nullptr || Logger::Initialize(Logger::TYPE_FILE, log, "", 3) != 0) {
        static_cast<void>(std::fputs("bench-library: BENCH_LOG must name a log file\n", stderr));
        return 2;
    }
    AddLog(std::string(log) + ".spdlog");
    AddStrings();
    AddCompose();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
