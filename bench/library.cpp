// The small operations, each beside its peers.

#include <benchmark/benchmark.h>
#include <pthread.h>
#include <spdlog/sinks/basic_file_sink.h>
#include <spdlog/spdlog.h>
#include <unicode/unistr.h>
#include <unicode/unorm2.h>
#include <unicode/ustring.h>

#include <QString>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "lib/liblogger/log.h"
#include "ustring/ustring.h"

#define LOG_SOURCE "bench"

namespace {

const ustring log_component("bench_debug");
std::string spdlog_file;  // beside the one of our own logger

const char kFolder[] = "/home/user/.Tarnwell/Tarnwell.app/Contents/Resources";
const char kName[] = "images/ico_72_tarnwell.png";
// What macOS stores for names with accents: decomposed.
const char kDecomposed[] =
    "/Users/Rene\xCC\x81/Bibliothe\xCC\x80que/Tarnwell.app/Contents/Resources/"
    "E\xCC\x81te\xCC\x81.txt";

// == A log line that is written

void LogWritten(benchmark::State& state) {
    for (auto _ : state) {
        LOG_MSG(ERROR, "failed to backup app from '%s' -> '%s' (%d)\n", kFolder, kName, 17);
    }
}
BENCHMARK(LogWritten);

void LogWritten_spdlog(benchmark::State& state) {
    static const auto logger = spdlog::basic_logger_mt("written", spdlog_file);
    logger->set_pattern("%b %d %H:%M:%S %v");
    logger->flush_on(spdlog::level::trace);
    for (auto _ : state) {
        logger->error("[ERROR] bench({}): failed to backup app from '{}' -> '{}' ({})", __LINE__,
                      kFolder, kName, 17);
    }
}
BENCHMARK(LogWritten_spdlog);

// == A log line that its threshold drops

void LogDropped(benchmark::State& state) {
    for (auto _ : state) {
        LOG_MSG(DEBUG, " org path [%s]\n", kFolder);
    }
}
BENCHMARK(LogDropped);

void LogDropped_lock_and_lookup(benchmark::State& state) {
    static pthread_mutex_t mutex = PTHREAD_MUTEX_INITIALIZER;
    const std::map<std::string, int> thresholds = {{"default_component", 4},
                                                   {"file_op_debug", 4},
                                                   {"launcher_debug", 4},
                                                   {"service_debug", 4}};
    const std::string component = "bench_debug";
    for (auto _ : state) {
        pthread_mutex_lock(&mutex);
        const auto entry = thresholds.find(component);
        benchmark::DoNotOptimize(entry == thresholds.end() ? 4 : entry->second);
        pthread_mutex_unlock(&mutex);
    }
}
BENCHMARK(LogDropped_lock_and_lookup);

void LogDropped_spdlog(benchmark::State& state) {
    static const auto logger = spdlog::basic_logger_mt("dropped", spdlog_file);
    for (auto _ : state) {
        logger->debug(" org path [{}]", kFolder);
    }
}
BENCHMARK(LogDropped_spdlog);

// == A string from UTF-8

void FromUtf8(benchmark::State& state) {
    for (auto _ : state) {
        const ustring text(kFolder);
        benchmark::DoNotOptimize(text.c_str());
    }
}
BENCHMARK(FromUtf8);

void FromUtf8_QString(benchmark::State& state) {
    for (auto _ : state) {
        const QString text = QString::fromUtf8(kFolder);
        benchmark::DoNotOptimize(text.constData());
    }
}
BENCHMARK(FromUtf8_QString);

void FromUtf8_UnicodeString(benchmark::State& state) {
    for (auto _ : state) {
        const icu::UnicodeString text = icu::UnicodeString::fromUTF8(kFolder);
        benchmark::DoNotOptimize(text.getBuffer());
    }
}
BENCHMARK(FromUtf8_UnicodeString);

void FromUtf8_string(benchmark::State& state) {
    for (auto _ : state) {
        const std::string text(kFolder);
        benchmark::DoNotOptimize(text.c_str());
    }
}
BENCHMARK(FromUtf8_string);

// == Joining a path

void Join(benchmark::State& state) {
    const ustring folder(kFolder);
    const ustring name(kName);
    for (auto _ : state) {
        const ustring path = folder + "/" + name;
        benchmark::DoNotOptimize(path.c_str());
    }
}
BENCHMARK(Join);

void Join_QString(benchmark::State& state) {
    const QString folder = QString::fromUtf8(kFolder);
    const QString name = QString::fromUtf8(kName);
    for (auto _ : state) {
        const QString path = folder + QStringLiteral("/") + name;
        benchmark::DoNotOptimize(path.constData());
    }
}
BENCHMARK(Join_QString);

void Join_UnicodeString(benchmark::State& state) {
    const icu::UnicodeString folder(kFolder);
    const icu::UnicodeString name(kName);
    for (auto _ : state) {
        const icu::UnicodeString path = folder + u"/" + name;
        benchmark::DoNotOptimize(path.getBuffer());
    }
}
BENCHMARK(Join_UnicodeString);

void Join_string(benchmark::State& state) {
    const std::string folder(kFolder);
    const std::string name(kName);
    for (auto _ : state) {
        const std::string path = folder + "/" + name;
        benchmark::DoNotOptimize(path.c_str());
    }
}
BENCHMARK(Join_string);

// == The composed form of a path

void Compose(benchmark::State& state) {
    for (auto _ : state) {
        const ustring path = ustring(kDecomposed).normalize(ustring::NFC);
        benchmark::DoNotOptimize(path.c_str());
    }
}
BENCHMARK(Compose);

// ICU's own calls: one that tells the size and one that fills a buffer of it, for the UTF-16 form,
// the composed one and its UTF-8 form.
void Compose_icu(benchmark::State& state) {
    for (auto _ : state) {
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
        benchmark::DoNotOptimize(path.data());
    }
}
BENCHMARK(Compose_icu);

void Compose_QString(benchmark::State& state) {
    for (auto _ : state) {
        const QByteArray path =
            QString::fromUtf8(kDecomposed).normalized(QString::NormalizationForm_C).toUtf8();
        benchmark::DoNotOptimize(path.constData());
    }
}
BENCHMARK(Compose_QString);

}  // namespace

// BENCH_LOG in the environment names the log file.
int main(int argc, char** argv) {
    const char* const log = std::getenv("BENCH_LOG");
    if (log == nullptr || Logger::Initialize(Logger::TYPE_FILE, log, "", 3) != 0) {
        static_cast<void>(std::fputs("bench-library: BENCH_LOG must name a log file\n", stderr));
        return 2;
    }
    spdlog_file = std::string(log) + ".spdlog";
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
