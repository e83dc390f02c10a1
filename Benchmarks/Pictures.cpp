// Makes JPEGs and decodes them with nothing but libjpeg. Its default error handler ends the program, which is right
// for bytes that were made here.
#include "Benchmarks/Pictures.hpp"

#include <cstdio>

#include <jpeglib.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace Benchmarks {

namespace {

struct Blob {
    double x;
    double y;
    double radius;
    double color[3];
};

std::vector<Blob> blobs(std::mt19937& random)
{
    std::uniform_real_distribution<double> unit(0, 1);
    std::vector<Blob> all(12);
    for (Blob& blob : all) {
        blob = {unit(random), unit(random), 0.1 + 0.3 * unit(random), {}};
        for (double& channel : blob.color)
            channel = 255 * unit(random);
    }
    return all;
}

void paintRow(std::vector<JSAMPLE>& row, double y, const std::vector<Blob>& all, std::mt19937& random)
{
    std::size_t width = row.size() / 3;
    for (std::size_t column = 0; column < width; ++column) {
        double x = static_cast<double>(column) / static_cast<double>(width);
        double sum[3] = {};
        double weights = 0;
        for (const Blob& blob : all) {
            double distance = std::hypot(x - blob.x, y - blob.y) / blob.radius;
            double weight = std::exp(-distance * distance);
            weights += weight;
            for (int i = 0; i < 3; ++i)
                sum[i] += weight * blob.color[i];
        }
        double noise = static_cast<double>(random() % 17) - 8;
        for (int i = 0; i < 3; ++i)
            row[column * 3 + static_cast<std::size_t>(i)]
                = static_cast<JSAMPLE>(std::clamp(sum[i] / (weights + 1e-9) + noise, 0.0, 255.0));
    }
}

}

std::vector<std::byte> photographJpeg(int width, int height)
{
    std::mt19937 random(941);
    std::vector<Blob> all = blobs(random);
    jpeg_error_mgr errors;
    jpeg_compress_struct compressor{};
    compressor.err = jpeg_std_error(&errors);
    jpeg_create_compress(&compressor);
    unsigned char* output = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&compressor, &output, &size);
    compressor.image_width = static_cast<JDIMENSION>(width);
    compressor.image_height = static_cast<JDIMENSION>(height);
    compressor.input_components = 3;
    compressor.in_color_space = JCS_RGB;
    jpeg_set_defaults(&compressor);
    jpeg_set_quality(&compressor, 85, TRUE);
    jpeg_start_compress(&compressor, TRUE);
    std::vector<JSAMPLE> row(static_cast<std::size_t>(width) * 3);
    for (int y = 0; y < height; ++y) {
        paintRow(row, static_cast<double>(y) / height, all, random);
        JSAMPROW rows[] = {row.data()};
        jpeg_write_scanlines(&compressor, rows, 1);
    }
    jpeg_finish_compress(&compressor);
    jpeg_destroy_compress(&compressor);
    auto bytes = reinterpret_cast<std::byte*>(output);
    std::vector<std::byte> jpeg(bytes, bytes + size);
    std::free(output);
    return jpeg;
}

void decodeAtAnEighth(const std::vector<std::byte>& jpeg, std::vector<std::uint8_t>& pixels)
{
    jpeg_error_mgr errors;
    jpeg_decompress_struct decompressor{};
    decompressor.err = jpeg_std_error(&errors);
    jpeg_create_decompress(&decompressor);
    jpeg_mem_src(&decompressor, reinterpret_cast<const unsigned char*>(jpeg.data()), jpeg.size());
    jpeg_read_header(&decompressor, TRUE);
    decompressor.scale_num = 1;
    decompressor.scale_denom = 8;
    jpeg_start_decompress(&decompressor);
    std::size_t stride = std::size_t{decompressor.output_width} * 3;
    pixels.resize(stride * decompressor.output_height);
    while (decompressor.output_scanline < decompressor.output_height) {
        JSAMPROW rows[] = {pixels.data() + stride * decompressor.output_scanline};
        jpeg_read_scanlines(&decompressor, rows, 1);
    }
    jpeg_finish_decompress(&decompressor);
    jpeg_destroy_decompress(&decompressor);
}

}
