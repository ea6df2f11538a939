#pragma once

#include <memory>
#include <ostream>
#include <sstream>
#include <string>

namespace tarnwick {

/// A file, or pipe, that the record of one game is written into. While it is open no other RecordFile can be
/// opened on it, in this program or another. The program must ignore SIGPIPE and SIGXFSZ.
///
/// What is flushed is in the file, and is a line or more. Where it cannot be written, nothing of it is, the
/// file is closed, and the flush throws std::runtime_error with the beginning of a sentence that tells what
/// happened to the record. It waits for nobody.
class RecordFile : public std::ostream {
  public:
    /// Opens the file behind what it holds, creating it where there is none; waits for nobody to read a pipe.
    /// Throws std::runtime_error, in one clear sentence, when it cannot be written.
    explicit RecordFile(const std::string& name);

  private:
    class Buffer : public std::stringbuf {
      public:
        explicit Buffer(const std::string& name);
        ~Buffer() override { close(); }

      protected:
        int sync() override;

      private:
        void close();

        std::string name_;
        int descriptor_ = -1;
        bool within_a_line_ = false;
    };

    Buffer buffer_;
};

/// Whether both names lead to one file, or would when it is made. Never throws: what leads nowhere is the
/// same as nothing but itself.
bool names_one_file(const std::string& a, const std::string& b);

/// The file of this name for a record; none when the name is empty. Throws CommandLineError when that is a
/// file of the store, and as RecordFile does.
std::unique_ptr<RecordFile> record_beside_store(const std::string& name, const std::string& store_file);

}  // namespace tarnwick
