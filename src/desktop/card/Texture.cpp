#include "desktop/card/Texture.hpp"

#include <memory>

namespace desktop {

Reference<GdkTexture> texture(const canvas::Pixels& pixels) {
    const auto release = [](GBytes* bytes) { g_bytes_unref(bytes); };
    const auto bytes = pixels.argb.size_bytes();
    const std::unique_ptr<GBytes, decltype(release)> copy(g_bytes_new(pixels.argb.data(), bytes),
                                                          release);
    const std::size_t stride = static_cast<std::size_t>(pixels.size.width) * sizeof(std::uint32_t);
    return adopted(gdk_memory_texture_new(pixels.size.width, pixels.size.height, GDK_MEMORY_DEFAULT,
                                          copy.get(), stride));
}

}  // namespace desktop
