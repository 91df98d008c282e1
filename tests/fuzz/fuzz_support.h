#pragma once
#include <cstddef>
#include <cstdint>
#include <string>

// The fuzzer's bytes as a string.
inline std::string BytesOf(const std::uint8_t* data, std::size_t size) {
    return std::string(reinterpret_cast<const char*>(data), size);
}

// A private scratch folder for this process (on a memory file system when there is one),
// made once and emptied of everything but itself by ClearScratch.
const std::string& ScratchFolder();
void ClearScratch();
