#pragma once

namespace tarnwick {

/// While it lives, SQLite works on a disk whose writing calls (write, truncate, sync, delete, and the opening
/// of a file that may be written) begin to fail at a given one.
class FaultyDisk {
  public:
    FaultyDisk();
    ~FaultyDisk();
    FaultyDisk(const FaultyDisk&) = delete;
    FaultyDisk& operator=(const FaultyDisk&) = delete;

    /// The n-th call from now on fails, counted from 1; with `for_ever` all after it as well.
    void fail_at(int n, bool for_ever);
    /// No call fails any more.
    void repair() { fail_at(0, false); }
    /// Whether a call has failed since fail_at().
    bool has_failed() const;
};

}  // namespace tarnwick
