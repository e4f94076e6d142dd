// Help > Instructions, Tutorial and About.
#pragma once

#include <string>
#include <string_view>

#include "platform/platform.h"

namespace tidemark {

// One of the documents, and what the warning says when no browser can be started.
struct HelpDocument {
    std::string_view File;
    std::string_view Warning;
};

inline constexpr HelpDocument InstructionsDocument{
    "Instructions.html",
    "External program Internet Explorer not found!\n"
    "Please open the file INSTRUCTIONS.HTML with your web browser manually!"};
inline constexpr HelpDocument TutorialDocument{
    "Tutorial.html",
    "External program Internet Explorer not found!\n"
    "Please open the file TUTORIAL.HTML with your web browser manually!"};

// The folders that the documents are looked for from.
struct HelpPlaces {
    std::string CurrentFolder;  // the documents lie in "Documentation" below it
    std::string ProgramFolder;  // of the program itself: an unpacked copy has its documents in
                                // "Documentation" there, an installed one in
                                // "../share/doc/tidemark/Documentation"
};

// The document's path: below the current folder, or, when it is not there, with the program. When
// it is nowhere, the path below the current folder.
std::string Find_help(const HelpDocument& document, const HelpPlaces& places, Files& files);

// "file://" and the path, with every byte that an address cannot carry as it is written %20 and the
// like. The separators stay as they are. So do the "\" and the letters beyond ASCII of a path with
// a drive letter, which Windows would read as of another encoding.
std::string File_address(std::string_view path);

// Shows the document in the web browser; warns when none can be started.
void Show_help(const HelpDocument& document, const HelpPlaces& places, Platform& platform);

// The About box.
void Show_about(Messages& messages);

}  // namespace tidemark
