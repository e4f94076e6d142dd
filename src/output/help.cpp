#include "output/help.h"

#include "model/path_text.h"

namespace tidemark {

namespace {

constexpr std::string_view AboutText =
    "Tidemark ( V 1.1 - 27th January 2003 )\n"
    "\n"
    "Written by the Tidemark developers, 2026\n"
    "\n"
    "Tidemark is a GUI-based editor for coastlines, roads etc. in Flight Simulator 2002;\n"
    "VTP coastlines / roads and LWM polygons can be easily drawn, and scenery compiled for "
    "FS2002.\n"
    "\n"
    "See Instructions and Tutorial for information on using Tidemark\n"
    "\n"
    "Please e-mail any comments or bug reports to:\n"
    "     bugs@tidemark.example";

bool Is_letter_or_digit(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

}  // namespace

std::string Find_help(const HelpDocument& document, const HelpPlaces& places, Files& files) {
    const std::string below = "/Documentation/" + std::string(document.File);
    std::string current = places.CurrentFolder + below;
    for (const std::string& path :
         {current, places.ProgramFolder + below,
          Folder_part(places.ProgramFolder) + "share/doc/tidemark" + below})
        if (files.Exists(path)) return path;
    return current;
}

std::string File_address(std::string_view path) {
    constexpr std::string_view hex = "0123456789ABCDEF";
    const bool is_of_windows = !path.starts_with('/');
    const std::string_view as_is = is_of_windows ? "/-._~:\\" : "/-._~:";
    std::string address = "file://";
    for (const char c : path) {
        const auto byte = static_cast<unsigned char>(c);
        const bool is_letter = Is_letter_or_digit(c) || (is_of_windows && byte >= 0x80);
        if (is_letter || as_is.find(c) != as_is.npos)
            address += c;
        else
            ((address += '%') += hex[byte / 16]) += hex[byte % 16];
    }
    return address;
}

void Show_help(const HelpDocument& document, const HelpPlaces& places, Platform& platform) {
    const std::string path = Find_help(document, places, platform.files);
    if (!platform.programs.Show_document(File_address(path)))
        Warn(platform.messages, document.Warning);
}

void Show_about(Messages& messages) {
    Inform(messages, "About Tidemark", AboutText);
}

}  // namespace tidemark
