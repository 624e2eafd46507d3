#ifndef PACKAGING_REPORT_H
#define PACKAGING_REPORT_H

#include "packaging/fault.h"
#include "packaging/options.h"
#include "packaging/summary.h"

// What make-package prints at the end: the result or the faults, as text or as JSON.
class Report {
  public:
    explicit Report(const Options& options) : options_(options) {}

    Summary summary;
    Faults faults;  // empty on success

    // Returns the exit status.
    int print() const;

  private:
    void printText() const;
    void printFaults() const;
    void printJson() const;

    const Options& options_;
};

#endif
