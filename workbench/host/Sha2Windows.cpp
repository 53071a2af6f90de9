#ifdef _WIN32
#include <windows.h>
// clang-format off: needs the header above
#include <bcrypt.h>
// clang-format on

#include <vector>

#include "automation/HostError.h"
#include "workbench/host/Sha2.h"

namespace tsln::workbench {
namespace {

const wchar_t* algorithm(std::int32_t bits) {
    switch (bits) {
        case 256:
            return BCRYPT_SHA256_ALGORITHM;
        case 384:
            return BCRYPT_SHA384_ALGORITHM;
        case 512:
            return BCRYPT_SHA512_ALGORITHM;
        default:
            return nullptr;
    }
}

bool digestInto(std::vector<unsigned char>& digest, const wchar_t* name, std::string_view bytes) {
    BCRYPT_ALG_HANDLE provider = nullptr;
    if (!name || BCryptOpenAlgorithmProvider(&provider, name, nullptr, 0) < 0) return false;
    auto* input = reinterpret_cast<PUCHAR>(const_cast<char*>(bytes.data()));
    const NTSTATUS status = BCryptHash(provider, nullptr, 0, input, static_cast<ULONG>(bytes.size()),
                                       digest.data(), static_cast<ULONG>(digest.size()));
    BCryptCloseAlgorithmProvider(provider, 0);
    return status >= 0;
}

}  // namespace

std::string sha2(std::string_view bytes, std::int32_t bits) {
    std::vector<unsigned char> digest(static_cast<std::size_t>(bits > 0 ? bits / 8 : 0));
    if (!digestInto(digest, algorithm(bits), bytes)) {
        throw HostError(code::badIndex, "SharedCode",
                        "There is no digest of " + std::to_string(bits) + " bits.");
    }
    std::string text;
    for (const unsigned char byte : digest) {
        text += "0123456789abcdef"[byte >> 4];
        text += "0123456789abcdef"[byte & 15];
    }
    return text;
}

}  // namespace tsln::workbench
#endif
