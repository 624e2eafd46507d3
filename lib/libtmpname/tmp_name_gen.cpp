#include "lib/libtmpname/tmp_name_gen.h"

#include <sys/time.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <utility>

namespace {

const int kStateSize = 256;

const char kAlphabet[] = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";
static_assert(sizeof kAlphabet == 64 + 1, "six bits choose one character");

// Packs three bytes into four characters as base64 does, most significant bits first.
void Encode(const unsigned char* bytes, char* out) {
    const auto group = static_cast<unsigned>(bytes[0] << 16 | bytes[1] << 8 | bytes[2]);
    for (int i = 0; i < 4; ++i) {
        out[i] = kAlphabet[group >> (18 - 6 * i) & 63];
    }
}

}  // namespace

pthread_mutex_t TmpNameGen::m_lock = PTHREAD_MUTEX_INITIALIZER;

TmpNameGen& TmpNameGen::getInstance() {
    static TmpNameGen instance;
    return instance;
}

TmpNameGen::TmpNameGen() {
    get_key(key, sizeof key);
    rc4_init(state, key);
}

ustring TmpNameGen::getTmpName() {
    char name[9] = {};
    pthread_mutex_lock(&m_lock);
    rc4_randomize(state, rand_buf, sizeof rand_buf);
    Encode(rand_buf, name);
    Encode(rand_buf + 3, name + 4);
    pthread_mutex_unlock(&m_lock);
    return ustring(name);
}

ustring TmpNameGen::getTmpPath(const ustring& dir) {
    return dir + "/" + getTmpName();
}

int TmpNameGen::get_key(unsigned char* dst, unsigned long n) {
    timeval now{};
    gettimeofday(&now, nullptr);
    return std::snprintf(reinterpret_cast<char*>(dst), n, "%lu-%lu",
                         static_cast<unsigned long>(now.tv_sec),
                         static_cast<unsigned long>(now.tv_usec));
}

void TmpNameGen::rc4_init(unsigned char* state, unsigned char* key) {
    for (int i = 0; i < kStateSize; ++i) {
        state[i] = static_cast<unsigned char>(i);
    }
    if (key[0] == 0) {
        std::srand(static_cast<unsigned>(std::time(nullptr)));
        for (int i = 0; i < kStateSize; ++i) {
            key[i] = static_cast<unsigned char>(std::rand());
        }
    }
    int j = 0;
    for (int i = 0; i < kStateSize; ++i) {
        j = (j + state[i] + key[i]) % kStateSize;
        std::swap(state[i], state[j]);
    }
}

void TmpNameGen::rc4_randomize(unsigned char* state, unsigned char* out, int n) {
    int j = 0;
    for (int k = 0; k < n; ++k) {
        const int i = (k + 1) % kStateSize;
        j = (j + state[i]) % kStateSize;
        std::swap(state[i], state[j]);
        out[k] = state[(state[i] + state[j]) % kStateSize];
    }
}
