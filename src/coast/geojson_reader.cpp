#include "coast/geojson_reader.h"

#include <cstdlib>
#include <new>
#include <rapidjson/error/en.h>
#include <rapidjson/reader.h>

#include "coast/geojson_handler.h"
#include "coast/geojson_stream.h"

namespace tidemark {

namespace {

constexpr std::size_t LongestText = std::size_t{16} << 20;

struct TooLong {};

// The parser's memory, which grows with the longest text of the file and with its nesting.
class BoundedMemory {
  public:
    void* Malloc(std::size_t size) { return Realloc(nullptr, 0, size); }
    void* Realloc(void* memory, std::size_t, std::size_t size) {
        if (size > LongestText) throw TooLong();
        if (size == 0) {
            Free(memory);
            return nullptr;
        }
        void* const moved = std::realloc(memory, size);
        if (moved == nullptr) throw std::bad_alloc();
        return moved;
    }
    static void Free(void* memory) { std::free(memory); }
};

using Reader = rapidjson::GenericReader<rapidjson::UTF8<>, rapidjson::UTF8<>, BoundedMemory>;

}  // namespace

void Read_geojson(CoastInput& input, CoastRuns& runs) {
    GeojsonStream stream(input);
    GeojsonHandler handler(stream, runs);
    Reader reader;
    try {
        // It calls itself for what is nested, which the handler ends before that is deep.
        const auto result = reader.Parse(stream, handler);
        if (result.IsError() && stream.Is_at_end())
            handler.Refuse("it is no JSON, or it was cut off: it ends within a value");
        if (result.IsError())
            handler.Refuse(std::string("it is no JSON: ") +
                           rapidjson::GetParseError_En(result.Code()));
    } catch (const TooLong&) {
        handler.Refuse("a text in it is longer than 10 MiB");
    }
    if (!stream.Is_at_end()) handler.Refuse("something follows the end of the JSON");
}

}  // namespace tidemark
