#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include <gmock/gmock.h>

namespace tsln::test {

/// Matches a text against a pattern, in which each "x" stands for a capital hexadecimal digit. GoogleMock's own
/// regular expressions on Windows have no character classes.
MATCHER_P(IsHexLike, pattern, "") {
    const std::string_view wanted = pattern;
    return std::ranges::equal(std::string_view(arg), wanted, [](char found, char meant) {
        return meant == 'x' ? std::string_view("0123456789ABCDEF").find(found) != std::string_view::npos
                            : found == meant;
    });
}

}  // namespace tsln::test
