#include "coast/xml_reader.h"

#include <charconv>
#include <expat.h>
#include <memory>

namespace tidemark {

namespace {

constexpr int DeepestNesting = 64;
constexpr std::size_t LongestTag = std::size_t{1} << 20;  // the parser keeps it until it ends

struct FreeParser {
    void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};

std::string_view Without_prefix(const char* name) {
    const std::string_view whole = name;
    const auto colon = whole.rfind(':');
    return colon == whole.npos ? whole : whole.substr(colon + 1);
}

}  // namespace

// What the parser calls. Nothing may be thrown through it: the first exception is kept and stops
// it.
struct XmlReader::Callbacks {
    template <class Act>
    static void Guarded(void* data, const Act& act) {
        XmlReader& reader = *static_cast<XmlReader*>(data);
        if (reader.failure_) return;
        reader.since_event_ = 0;
        try {
            act(reader);
        } catch (...) {
            reader.failure_ = std::current_exception();
            XML_StopParser(reader.parser_, XML_FALSE);
        }
    }

    static void Begin(void* data, const char* name, const char** attributes) {
        Guarded(data, [&](XmlReader& reader) {
            reader.attributes_ = attributes;
            reader.Check_start(Without_prefix(name));
            reader.Begin(Without_prefix(name));
        });
    }

    static void End(void* data, const char* name) {
        Guarded(data, [&](XmlReader& reader) {
            --reader.depth_;
            reader.End(Without_prefix(name));
        });
    }

    static void Text(void* data, const char* text, int length) {
        Guarded(data, [&](XmlReader& reader) {
            reader.Take_text({text, static_cast<std::size_t>(length)});
        });
    }

    static void Entity(void* data, const char*, int, const char*, int, const char*, const char*,
                       const char*, const char*) {
        Guarded(data, [](XmlReader& reader) { reader.Refuse("it declares an entity"); });
    }
};

void XmlReader::Read(CoastInput& input) {
    const std::unique_ptr<XML_ParserStruct, FreeParser> parser(XML_ParserCreate(nullptr));
    if (!parser) throw std::bad_alloc();
    parser_ = parser.get();
    XML_SetUserData(parser_, this);
    XML_SetElementHandler(parser_, Callbacks::Begin, Callbacks::End);
    XML_SetCharacterDataHandler(parser_, Callbacks::Text);
    XML_SetEntityDeclHandler(parser_, Callbacks::Entity);
    bool is_last = false;
    while (!is_last) {
        const auto piece = input.Next();
        is_last = piece.empty();
        Feed(piece.data(), piece.size(), is_last);
    }
}

void XmlReader::Feed(const char* bytes, std::size_t count, bool is_last) {
    const auto status = XML_Parse(parser_, bytes, static_cast<int>(count), is_last);
    if (failure_) std::rethrow_exception(failure_);
    if (status != XML_STATUS_OK)
        Refuse(std::string("it is no XML: ") + XML_ErrorString(XML_GetErrorCode(parser_)));
    since_event_ += count;
    if (since_event_ > LongestTag) Refuse("a tag in it is longer than 1 MiB");
}

void XmlReader::Check_start(std::string_view name) {
    if (depth_ == 0 && name != root_)
        Refuse("its first element is <" + std::string(name.substr(0, 60)) + ">, not <" +
               std::string(root_) + ">");
    if (++depth_ > DeepestNesting)
        Refuse("it is nested more than " + std::to_string(DeepestNesting) + " deep");
}

std::optional<std::string_view> XmlReader::Attribute(std::string_view name) const {
    for (const char** at = attributes_; *at != nullptr; at += 2)
        if (name == *at) return at[1];
    return std::nullopt;
}

CoastPlace XmlReader::Here() const {
    return {"line", static_cast<std::size_t>(XML_GetCurrentLineNumber(parser_))};
}

void XmlReader::Refuse(const std::string& what) const {
    throw CoastRefusal{Here().Text(), what};
}

std::optional<double> Degrees_in(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const auto start = text.find_first_not_of(blanks);
    if (start == text.npos) return std::nullopt;
    text = text.substr(start, text.find_last_not_of(blanks) + 1 - start);
    if (text.starts_with('+')) text.remove_prefix(1);
    double degrees = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), degrees);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return degrees;
}

}  // namespace tidemark
