#ifndef LIB_LIBTMPNAME_TMP_NAME_GEN_H
#define LIB_LIBTMPNAME_TMP_NAME_GEN_H

#include <pthread.h>

#include "ustring/ustring.h"

// Short random names for temporary files: eight letters, digits, "-" and "_". They come from an RC4
// keystream, which each object keys from the time when it is created. They are not secrets, and
// nothing checks whether a file of that name exists.
//
// Threads: getInstance, getTmpName and getTmpPath may be called from any thread.
class TmpNameGen {
  public:
    static TmpNameGen& getInstance();

    // Both return a new name at each call; getTmpPath puts dir and "/" in front.
    ustring getTmpName();
    ustring getTmpPath(const ustring& dir);

    TmpNameGen();
    ~TmpNameGen() = default;
    TmpNameGen(const TmpNameGen&) = delete;
    TmpNameGen& operator=(const TmpNameGen&) = delete;

    // Writes the present time as "seconds-microseconds" to dst, at most n bytes with the
    // terminator. Returns the length of the full text.
    static int get_key(unsigned char* dst, unsigned long n);

    // RC4's key schedule over all 256 bytes of key. A key that begins with a zero byte counts as
    // empty and is first filled from rand().
    static void rc4_init(unsigned char* state, unsigned char* key);

    // Writes n bytes of RC4's keystream to out, nothing if n is 0 or less. Only the permutation is
    // kept between calls; both indices start at 0 each time.
    static void rc4_randomize(unsigned char* state, unsigned char* out, int n);

  protected:
    unsigned char state[256] = {};
    unsigned char key[256] = {};  // the key text, then zero bytes
    unsigned char rand_buf[6] = {};

  private:
    static pthread_mutex_t m_lock;
};

#endif
