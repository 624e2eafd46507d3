#ifndef LIB_LIBTMPNAME_TMP_NAME_GEN_H
#define LIB_LIBTMPNAME_TMP_NAME_GEN_H

#include <pthread.h>

#include "ustring/ustring.h"

// Short random names for temporary files: eight characters out of 64, which are letters, digits,
// "-" and "_". They come from an RC4 keystream that is keyed once per process from the time. They
// are not secrets, and nothing checks whether a file of that name exists.
//
// Threads: getInstance, getTmpName and getTmpPath may be called from any thread.
class TmpNameGen {
  public:
    static TmpNameGen& getInstance();

    // Both return a fresh name at each call; getTmpPath puts dir and "/" in front.
    ustring getTmpName();
    ustring getTmpPath(const ustring& dir);

    TmpNameGen();
    ~TmpNameGen() = default;
    TmpNameGen(const TmpNameGen&) = delete;
    TmpNameGen& operator=(const TmpNameGen&) = delete;

    // The text "seconds-microseconds" of this moment, cut to n bytes with its terminator; returns
    // the length of the full text.
    static int get_key(unsigned char* dst, unsigned long n);

    // RC4's key schedule over all 256 bytes of key. An empty key, which begins with a zero byte, is
    // first filled from rand().
    static void rc4_init(unsigned char* state, unsigned char* key);

    // n bytes of RC4's keystream. The two indices start at 0 at each call, only the permutation
    // goes on. Nothing is written for an n of 0 or less.
    static void rc4_randomize(unsigned char* state, unsigned char* out, int n);

  protected:
    unsigned char state[256] = {};
    unsigned char key[256] = {};  // the key text, then zero bytes
    unsigned char rand_buf[6] = {};

  private:
    static pthread_mutex_t m_lock;
};

#endif
