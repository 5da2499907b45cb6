// What makes an SQLite file a feed library.
#pragma once

#include <cstdint>
#include <string_view>

namespace tav {

// In the file's header, where SQLite has a place for an application's own mark: "TAVF".
inline constexpr std::int32_t kLibraryMark = 0x54415646;

// What a library keeps of its password, in the header's place for a version. It tells a wrong
// password from the right one; it does not protect the file's content.
constexpr std::int32_t PasswordCheck(std::string_view password) {
    std::uint32_t hash = 2166136261U;
    for (const char c : password) {
        hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
    }
    return static_cast<std::int32_t>(hash);
}

// The password in a connect string such as "; pwd=..."; empty if there is none.
std::string_view PasswordOf(std::string_view connect);

}  // namespace tav
