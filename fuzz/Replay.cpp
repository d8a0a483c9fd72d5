#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

/// Goes through the inputs of a folder, and through each of them cut short.
int main(int argumentCount, char** arguments) {
    std::size_t inputs = 0;
    for (int i = 1; i < argumentCount; ++i)
        for (const auto& entry : std::filesystem::directory_iterator(arguments[i])) {
            std::ifstream stream(entry.path(), std::ios::binary);
            const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
            for (std::size_t size = bytes.size(), cuts = 0; cuts < 16; size = size * 3 / 4, ++cuts)
                LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), size);
            ++inputs;
        }
    std::cout << inputs << " inputs\n";
    return inputs == 0 ? 1 : 0;
}
