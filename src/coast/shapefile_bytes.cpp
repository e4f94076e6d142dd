#include "coast/shapefile_bytes.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <system_error>

namespace tidemark {

namespace fs = std::filesystem;

namespace {

std::u8string In_lower_case(std::u8string text) {
    for (char8_t& letter : text)
        if (letter >= 'A' && letter <= 'Z') letter = static_cast<char8_t>(letter - 'A' + 'a');
    return text;
}

ShapefileBytes* Bytes_of(SAFile file) {
    return reinterpret_cast<ShapefileBytes*>(file);
}

// Shapelib asks for extensions in lower or upper case; the file's own may be in any.
SAFile Open(const char* name, const char*) {
    const std::u8string utf8(name, name + std::strlen(name));
    const fs::path asked(utf8);
    auto file = std::make_unique<ShapefileBytes>(asked);
    if (file->Is_open()) return reinterpret_cast<SAFile>(file.release());
    const std::u8string extension = In_lower_case(asked.extension().u8string());
    const auto found = File_beside(asked, {extension.begin(), extension.end()});
    if (!found) return nullptr;
    file = std::make_unique<ShapefileBytes>(*found);
    return file->Is_open() ? reinterpret_cast<SAFile>(file.release()) : nullptr;
}

SAOffset Read(void* bytes, SAOffset size, SAOffset count, SAFile file) {
    if (size == 0) return 0;
    const auto read = Bytes_of(file)->Read(static_cast<char*>(bytes), std::uint64_t{size} * count);
    return static_cast<SAOffset>(read / size);
}

SAOffset Seek(SAFile file, SAOffset offset, int from) {
    ShapefileBytes& bytes = *Bytes_of(file);
    const std::uint64_t start = from == SEEK_SET   ? 0
                                : from == SEEK_CUR ? bytes.Place()
                                                   : bytes.Size();
    bytes.Go_to(start + offset);
    return 0;
}

SAOffset Tell(SAFile file) {
    return static_cast<SAOffset>(Bytes_of(file)->Place());
}

int Close(SAFile file) {
    delete Bytes_of(file);
    return 0;
}

}  // namespace

std::optional<fs::path> File_beside(const fs::path& path, const std::string& extension) {
    const std::u8string wanted(extension.begin(), extension.end());
    const fs::path folder = path.has_parent_path() ? path.parent_path() : fs::path(".");
    std::error_code unreadable;
    for (auto entry = fs::directory_iterator(folder, unreadable);
         !unreadable && entry != fs::directory_iterator(); entry.increment(unreadable))
        if (entry->path().stem() == path.stem() &&
            In_lower_case(entry->path().extension().u8string()) == wanted)
            return entry->path();
    return std::nullopt;
}

ShapefileBytes::ShapefileBytes(const fs::path& path) : buffer_(BufferSize) {
    std::error_code gone;
    if (!fs::is_regular_file(path, gone)) return;
    size_ = fs::file_size(path, gone);
    stream_.open(path, std::ios::binary);
}

std::uint64_t ShapefileBytes::Read(char* bytes, std::uint64_t count) {
    if (place_ >= size_) return 0;
    count = std::min(count, size_ - place_);
    const bool is_buffered = place_ >= buffer_start_ && place_ + count <= buffer_start_ + buffered_;
    std::uint64_t read = count;
    if (!is_buffered && count >= BufferSize) {
        read = Read_at(place_, bytes, count);
    } else {
        if (!is_buffered) {
            buffer_start_ = place_;
            buffered_ = Read_at(place_, buffer_.data(), BufferSize);
        }
        read = std::min(count, buffered_ - (place_ - buffer_start_));
        std::memcpy(bytes, buffer_.data() + (place_ - buffer_start_), read);
    }
    place_ += read;
    return read;
}

std::uint64_t ShapefileBytes::Read_at(std::uint64_t place, char* bytes, std::uint64_t count) {
    stream_.clear();
    stream_.seekg(static_cast<std::streamoff>(place));
    stream_.read(bytes, static_cast<std::streamsize>(count));
    return static_cast<std::uint64_t>(std::max<std::streamsize>(stream_.gcount(), 0));
}

SAHooks Shapefile_hooks() {
    SAHooks hooks{};
    hooks.FOpen = Open;
    hooks.FRead = Read;
    hooks.FWrite = [](void*, SAOffset, SAOffset, SAFile) -> SAOffset { return 0; };
    hooks.FSeek = Seek;
    hooks.FTell = Tell;
    hooks.FFlush = [](SAFile) { return 0; };
    hooks.FClose = Close;
    hooks.Remove = [](const char*) { return -1; };
    hooks.Error = [](const char*) {};
    hooks.Atof = std::atof;
    return hooks;
}

}  // namespace tidemark
