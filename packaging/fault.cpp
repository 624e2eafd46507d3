#include "packaging/fault.h"

#include <cerrno>
#include <cstring>
#include <utility>

#include "lib/liblogger/printable.h"

std::string Text(const Fault& fault) {
    const std::string advice = fault.advice.empty() ? "" : "; " + fault.advice;
    return Printable(fault.where + ": " + fault.what + advice);
}

Faults Below(const std::string& folder, Faults faults) {
    for (Fault& fault : faults) {
        fault.where = folder + "/" + fault.where;
    }
    return faults;
}

PackageError::PackageError(Faults faults)
    : std::runtime_error(Text(faults.front())),
      faults_(std::make_shared<const Faults>(std::move(faults))) {}

PackageError::PackageError(const std::string& where, const std::string& what,
                           const std::string& advice)
    : PackageError(Faults{{where, what, advice}}) {}

void ThrowIfAny(const Faults& faults) {
    if (!faults.empty()) {
        throw PackageError(faults);
    }
}

void FailWithErrno(const std::string& where, const std::string& what, const std::string& advice) {
    const int error = errno;
    throw PackageError(where, what + ": " + std::strerror(error), advice);
}
