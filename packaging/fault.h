#ifndef PACKAGING_FAULT_H
#define PACKAGING_FAULT_H

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

// A reason why an application can't be packed, or why a package or a bundle can't be shipped.
struct Fault {
    std::string where;   // a path
    std::string what;    // what is wrong with it
    std::string advice;  // what to do; may be empty
};

using Faults = std::vector<Fault>;

// The fault as one line of printable text.
std::string Text(const Fault& fault);

// Puts the folder in front of each path.
Faults Below(const std::string& folder, Faults faults);

// Carries at least one fault; what() is the text of the first.
class PackageError : public std::runtime_error {
  public:
    explicit PackageError(Faults faults);
    PackageError(const std::string& where, const std::string& what, const std::string& advice);

    const Faults& faults() const { return *faults_; }

  private:
    std::shared_ptr<const Faults> faults_;  // copying an exception must not throw
};

// Throws the faults, if there are any.
void ThrowIfAny(const Faults& faults);

// Throws with the text of errno after what.
[[noreturn]] void FailWithErrno(const std::string& where, const std::string& what,
                                const std::string& advice = "");

#endif
