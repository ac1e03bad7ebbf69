// SPDX-License-Identifier: MIT
// A hash table by text, over the memory of an allocator (osi/allocator.h). Its keys are views of
// texts that somebody else holds, unchanged.
#ifndef PANDREL_OSI_BY_TEXT_H
#define PANDREL_OSI_BY_TEXT_H

#include <functional>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "osi/allocator.h"

template <typename Mapped, typename Memory>
using ByText =
    std::unordered_map<std::string_view, Mapped, std::hash<std::string_view>, std::equal_to<>,
                       Allocator<std::pair<const std::string_view, Mapped>, Memory>>;

#endif
