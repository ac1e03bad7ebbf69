// SPDX-License-Identifier: MIT
// The memory that files go through. A conversion reads all of its input before it writes anything,
// so one buffer serves the scanner and then the writer: in a run that takes two milliseconds,
// touching fresh memory is a cost that shows.
#ifndef PANDREL_OSI_IO_BUFFER_H
#define PANDREL_OSI_IO_BUFFER_H

#include <cstddef>

constexpr std::size_t kIoBufferSize = 32 * 1024;

// Behind the buffer, for a look past the end of what is in it.
constexpr std::size_t kIoBufferMargin = 64;

extern char io_buffer[kIoBufferSize + kIoBufferMargin];

#endif
