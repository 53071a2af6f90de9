#ifndef _WIN32
#include <openssl/evp.h>

#include "automation/HostError.h"
#include "workbench/host/Sha2.h"

namespace tsln::workbench {

std::string sha2(std::string_view bytes, std::int32_t bits) {
    const EVP_MD* method = bits == 256   ? EVP_sha256()
                           : bits == 384 ? EVP_sha384()
                           : bits == 512 ? EVP_sha512()
                                         : nullptr;
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned int size = 0;
    if (!method || EVP_Digest(bytes.data(), bytes.size(), digest, &size, method, nullptr) != 1) {
        throw HostError(code::badIndex, "SharedCode",
                        "There is no digest of " + std::to_string(bits) + " bits.");
    }
    std::string text;
    for (unsigned int i = 0; i < size; ++i) {
        text += "0123456789abcdef"[digest[i] >> 4];
        text += "0123456789abcdef"[digest[i] & 15];
    }
    return text;
}

}  // namespace tsln::workbench
#endif
