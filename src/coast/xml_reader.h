// The elements of XML text, as they come; the base of the readers of KML and GPX.
#pragma once

#include <cstddef>
#include <exception>
#include <optional>
#include <string>
#include <string_view>

#include "coast/coast_input.h"
#include "coast/coast_runs.h"

struct XML_ParserStruct;

namespace tidemark {

class XmlReader {
  public:
    XmlReader(const XmlReader&) = delete;
    XmlReader& operator=(const XmlReader&) = delete;
    virtual ~XmlReader() = default;

    // Reads to the end. Throws CoastRefusal and CoastCancelled, and what the functions below throw.
    // Text that declares entities is refused before they could be expanded.
    void Read(CoastInput& input);

  protected:
    explicit XmlReader(std::string_view root) : root_(root) {}

    // The value of an attribute of the element that begins.
    std::optional<std::string_view> Attribute(std::string_view name) const;
    CoastPlace Here() const;
    [[noreturn]] void Refuse(const std::string& what) const;

    // Names are without their namespace's prefix. Texts come in pieces.
    virtual void Begin(std::string_view name) = 0;
    virtual void Take_text(std::string_view text) = 0;
    virtual void End(std::string_view name) = 0;

  private:
    struct Callbacks;

    void Check_start(std::string_view name);
    void Feed(const char* bytes, std::size_t count, bool is_last);

    std::string_view root_;
    XML_ParserStruct* parser_ = nullptr;
    const char** attributes_ = nullptr;
    int depth_ = 0;
    std::size_t since_event_ = 0;  // bytes that were fed after the last call of the parser
    std::exception_ptr failure_;
};

// A number in degrees; nothing when the text is none or has more than that.
std::optional<double> Degrees_in(std::string_view text);

}  // namespace tidemark
