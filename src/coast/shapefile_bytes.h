// A file of a shapefile as shapelib reads it: in small pieces from all over the file.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <optional>
#include <shapefil.h>
#include <string>
#include <vector>

namespace tidemark {

// The file with the same name except for its extension, in whatever case that is written.
std::optional<std::filesystem::path> File_beside(const std::filesystem::path& path,
                                                 const std::string& extension);

class ShapefileBytes {
  public:
    explicit ShapefileBytes(const std::filesystem::path& path);

    bool Is_open() const { return stream_.is_open(); }
    std::uint64_t Size() const { return size_; }
    std::uint64_t Place() const { return place_; }
    void Go_to(std::uint64_t place) { place_ = place; }

    // As many of the bytes as there are.
    std::uint64_t Read(char* bytes, std::uint64_t count);

  private:
    static constexpr std::uint64_t BufferSize = 65536;

    std::uint64_t Read_at(std::uint64_t place, char* bytes, std::uint64_t count);

    std::ifstream stream_;
    std::uint64_t size_ = 0, place_ = 0;
    std::vector<char> buffer_;
    std::uint64_t buffer_start_ = 0, buffered_ = 0;
};

// Has shapelib read through ShapefileBytes, write nothing and print nothing. Names of files are
// UTF-8.
SAHooks Shapefile_hooks();

}  // namespace tidemark
