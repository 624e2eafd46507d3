#include "packaging/temporary-folder.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <vector>

#include "lib/libclient/file-op.h"
#include "lib/platform/handles.h"
#include "packaging/fault.h"

namespace fs = std::filesystem;

namespace {

const std::size_t kProbe = 65536;  // bytes
const char kAdvice[] = "set TMPDIR to a folder with more space that you can write to";

}  // namespace

TemporaryFolder::TemporaryFolder() {
    const char* const variable = std::getenv("TMPDIR");
    const std::string parent = variable != nullptr && *variable != '\0' ? variable : "/tmp";
    std::error_code error;
    const std::string canonical = fs::canonical(parent, error);  // unpacking refuses ".."
    path_ = (error ? parent : canonical) + "/make-package-XXXXXX";
    if (mkdtemp(path_.data()) == nullptr) {
        FailWithErrno(parent, "no temporary folder can be made in it", kAdvice);
    }
}

TemporaryFolder::~TemporaryFolder() {
    static_cast<void>(FSRemoveOwnTree(path_));
}

void TemporaryFolder::requireSpace() const {
    const platform::Descriptor probe(
        open((path_ + "/probe").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
    const std::vector<char> block(kProbe);
    errno = ENOSPC;  // for a short write, which sets no errno
    if (probe.get() < 0 ||
        write(probe.get(), block.data(), kProbe) != static_cast<ssize_t>(kProbe)) {
        FailWithErrno(path_, "nothing can be written to this temporary folder", kAdvice);
    }
}
