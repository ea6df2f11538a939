#pragma once

#include <istream>
#include <string>
#include <string_view>

namespace tarnwick {

// Text that comes from outside (a file, the command line) may be anything. It is kept within bounds, and an
// error that quotes it does not let it act on the terminal that shows the error.

/// The text with every byte that belongs to no printable character of UTF-8 written out, as in \x1b.
std::string printable(std::string_view text);

/// The first 40 characters of the text, printable, and "..." when there are more.
std::string excerpt(std::string_view text);

/// The text without the byte order mark that some editors put at its start.
std::string_view without_byte_order_mark(std::string_view text);

/// Throws std::invalid_argument when a line has more than 4,096 characters.
void check_length(std::string_view line);

/// Reads a line without its end; false when there is none left. Of a line without an end it reads only as
/// much as check_length needs to refuse it.
bool read_line(std::istream& stream, std::string& line);

/// Sends off what was written to std::cout. Throws std::runtime_error, in one sentence, when that or
/// something before it could not be written. A closed pipe is told like this only where SIGPIPE is ignored.
void flush_standard_output();

}  // namespace tarnwick
