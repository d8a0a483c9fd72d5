// The PNG file of a face at two pixels per point: our encoder against Cairo's.

#include "platform/canvas/PNG.hpp"
#include "platform/canvas/PixelCanvas.hpp"
#include "support/HandMadeScenes.hpp"

#include <benchmark/benchmark.h>
#include <cairo.h>

namespace {

class Face {
  public:
    Face() : canvas_(fonts_), pixels_(canvas_.draw(scenes::volume(), 2)) {}
    const canvas::Pixels& pixels() const { return pixels_; }

  private:
    canvas::FontLibrary fonts_;
    canvas::PixelCanvas canvas_;
    canvas::Pixels pixels_;
};

void encodeOurs(benchmark::State& state) {
    const Face face;
    std::size_t bytes = 0;
    for (auto _ : state)
        bytes = canvas::encodePNG(face.pixels()).size();
    state.counters["bytes"] = static_cast<double>(bytes);
}

cairo_status_t append(void* file, const unsigned char* bytes, unsigned int count) {
    static_cast<std::string*>(file)->append(reinterpret_cast<const char*>(bytes), count);
    return CAIRO_STATUS_SUCCESS;
}

void encodeWithCairo(benchmark::State& state) {
    const Face face;
    const canvas::PixelSize size = face.pixels().size;
    std::vector<std::uint32_t> argb(face.pixels().argb.begin(), face.pixels().argb.end());
    cairo_surface_t* surface = cairo_image_surface_create_for_data(
        reinterpret_cast<unsigned char*>(argb.data()), CAIRO_FORMAT_ARGB32, size.width, size.height,
        size.width * 4);
    std::size_t bytes = 0;
    for (auto _ : state) {
        std::string file;
        cairo_surface_write_to_png_stream(surface, append, &file);
        bytes = file.size();
    }
    state.counters["bytes"] = static_cast<double>(bytes);
    cairo_surface_destroy(surface);
}

BENCHMARK(encodeOurs);
BENCHMARK(encodeWithCairo);

}  // namespace

BENCHMARK_MAIN();
