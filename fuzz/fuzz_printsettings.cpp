// The print settings string: any text a host hands over as a dialog's print
// settings is read key by key as the report does (margins, colours, sizes,
// the section switches, the footer texts with their placeholders). A value
// that is no number or boolean is a type mismatch for the error path; never
// a crash or undefined behaviour. A bag gives back what was written to it.

#include "FuzzPorts.h"
#include "reports/FooterText.h"
#include "reports/PrintSettings.h"
#include "toolkit/Failure.h"
#include "values/types/CStringBag.h"
#include "values/types/Convert.h"

using namespace qv;

namespace {

template <class F>
void mayMismatch(F&& read) {
    try {
        read();
    } catch (const Failure&) {
        // A value of the wrong type: the report's trap takes it.
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::readyPorts();
    const std::string input = fuzz::text(data, size);
    CStringBag bag;
    bag.setContents(input);
    for (const char* key : {"TOP", "BOTTOM", "RIGHT", "LEFT"})
        mayMismatch([&] { (void)toSingle(bag.ReadItem(key)); });
    for (const char* key : {"COPIES", "HCOLOR", "HSIZE", "FCOLOR", "FSIZE"})
        mayMismatch([&] { (void)toLong(bag.ReadItem(key)); });
    for (const char* key : {"PTASK", "PCHECKLIST", "PNOTES", "PSCHEDULE"})
        mayMismatch([&] { (void)PrintSettings::boolOf(bag.ReadItem(key)); });
    for (const char* key : {"FLEFT", "FRIGHT"}) (void)FooterText::forPrint(bag.ReadItem(key), 46000.5);

    // A value without tabs or '=' written into the string reads back whole.
    const std::string value = input.substr(0, input.find_first_of("\t="));
    CStringBag written;
    written.setContents("HEADING=" + value + "\tFLEFT=x\t");
    if (written.ReadItem("HEADING") != value) fuzz::broken("a written value did not read back", input);
    return 0;
}
