// SPDX-License-Identifier: MIT
#include "support/protect_calls.h"

#include <utility>

namespace support {

namespace {

// The calls come from a plain function, which finds its catcher through this.
ProtectCalls*& catcher()
{
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): see above
    static ProtectCalls* calls = nullptr;
    return calls;
}

} // namespace

// The linker hands all calls of `CCommonUtils::protectMediaFile` to the function of this name.
void caught(const QString& path, bool protect) asm(
    "__wrap__ZN12CCommonUtils16protectMediaFileERK7QStringb");

void caught(const QString& path, bool protect)
{
    if (catcher() != nullptr) {
        catcher()->add(path, protect);
    }
}

ProtectCalls::ProtectCalls(std::function<QString()> look) : m_look(std::move(look))
{
    catcher() = this;
}

ProtectCalls::~ProtectCalls()
{
    catcher() = nullptr;
}

void ProtectCalls::add(const QString& path, bool protect)
{
    const QString call = (protect ? "close " : "open ") + path;
    m_calls.append(m_look ? call + ": " + m_look() : call);
}

} // namespace support
