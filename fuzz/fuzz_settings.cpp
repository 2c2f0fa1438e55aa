// The settings file reader: any text in QuorvelSettings.txt gives a path
// (maybe empty), never a crash. A file as the component writes it, with
// either line end, gives back exactly the path written.

#include "FuzzPorts.h"
#include "store/ADOCode.h"

using namespace qv;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string input = fuzz::text(data, size);
    const std::string path = dbLocationIn(input);
    // LF line ends read as CR LF, so at most twice the text.
    if (path.size() > 2 * input.size()) fuzz::broken("the path is longer than the file", input);
    // Any path without line breaks survives the written shape.
    if (input.find_first_of("\r\n") == std::string::npos && input.find("</DBLoc>") == std::string::npos) {
        if (dbLocationIn("<Quorvel>\r\n<DBLoc>\r\n" + input + "\r\n</DBLoc>\r\n</Quorvel>\r\n") != input)
            fuzz::broken("a CR LF file lost its path", input);
        if (dbLocationIn("<Quorvel>\n<DBLoc>\n" + input + "\n</DBLoc>\n</Quorvel>\n") != input)
            fuzz::broken("an LF file lost its path", input);
    }
    return 0;
}
