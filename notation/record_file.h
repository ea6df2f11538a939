#pragma once

#include <stdexcept>
#include <string>

namespace tarnwick {

/// A file, or pipe, that the record of one game is written into, line by line. While it is open no other
/// RecordFile can be opened on it, in this program or another. The program must ignore SIGPIPE and SIGXFSZ.
class RecordFile {
  public:
    /// Opens the file behind what it holds, creating it where there is none; waits for nobody to read a pipe.
    /// Throws std::runtime_error, in one clear sentence, when it cannot be written.
    explicit RecordFile(const std::string& name);
    ~RecordFile();
    RecordFile(const RecordFile&) = delete;
    RecordFile& operator=(const RecordFile&) = delete;

    /// The line is in the file when this returns. Throws std::runtime_error, with the beginning of a sentence
    /// that tells what happened to the record, when it is not: then nothing of it is. Waits for nobody.
    void write_line(const std::string& line);

  private:
    std::string name_;
    int descriptor_ = -1;
    bool within_a_line_ = false;
};

/// Whether both names lead to one file, or would when it is made. Never throws: what leads nowhere is the
/// same as nothing but itself.
bool names_one_file(const std::string& a, const std::string& b);

}  // namespace tarnwick
