// SPDX-License-Identifier: MIT
#include "osi/io_buffer.h"

char io_buffer[kIoBufferSize + kIoBufferMargin];
