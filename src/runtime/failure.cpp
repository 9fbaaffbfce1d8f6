#include "runtime/failure.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

struct Entry {
    int number;
    const char* text;
};

/// The platform's own texts, ordered by number so that one is found by halving.
constexpr std::array entries{
    Entry{3, "Return without GoSub"},
    Entry{5, "Invalid procedure call or argument"},
    Entry{6, "Overflow"},
    Entry{7, "Out of memory"},
    Entry{9, "Subscript out of range"},
    Entry{10, "This array is fixed or temporarily locked"},
    Entry{11, "Division by zero"},
    Entry{13, "Type mismatch"},
    Entry{14, "Out of string space"},
    Entry{16, "Expression too complex"},
    Entry{17, "Can't perform requested operation"},
    Entry{18, "User interrupt occurred"},
    Entry{20, "Resume without error"},
    Entry{28, "Out of stack space"},
    Entry{35, "Sub or Function not defined"},
    Entry{47, "Too many DLL application clients"},
    Entry{48, "Error in loading DLL"},
    Entry{49, "Bad DLL calling convention"},
    Entry{51, "Internal error"},
    Entry{52, "Bad file name or number"},
    Entry{53, "File not found"},
    Entry{54, "Bad file mode"},
    Entry{55, "File already open"},
    Entry{57, "Device I/O error"},
    Entry{58, "File already exists"},
    Entry{59, "Bad record length"},
    Entry{61, "Disk full"},
    Entry{62, "Input past end of file"},
    Entry{63, "Bad record number"},
    Entry{67, "Too many files"},
    Entry{68, "Device unavailable"},
    Entry{70, "Permission denied"},
    Entry{71, "Disk not ready"},
    Entry{74, "Can't rename with different drive"},
    Entry{75, "Path/File access error"},
    Entry{76, "Path not found"},
    Entry{91, "Object variable or With block variable not set"},
    Entry{92, "For loop not initialized"},
    Entry{93, "Invalid pattern string"},
    Entry{94, "Invalid use of Null"},
    Entry{320, "Can't use character device names in specified file names"},
    Entry{321, "Invalid file format"},
    Entry{322, "Can't create necessary temporary file"},
    Entry{325, "Invalid format in resource file"},
    Entry{327, "Data value named not found"},
    Entry{328, "Illegal parameter; can't write arrays"},
    Entry{335, "Could not access system registry"},
    Entry{336, "Component not correctly registered"},
    Entry{337, "Component not found"},
    Entry{338, "Component did not run correctly"},
    Entry{340, "Control array element doesn't exist"},
    Entry{341, "Invalid control array index"},
    Entry{342, "Not enough room to allocate control array"},
    Entry{343, "Object not an array"},
    Entry{344, "Must specify index for object array"},
    Entry{345, "Reached limit: cannot create any more controls for this form"},
    Entry{360, "Object already loaded"},
    Entry{361, "Can't load or unload this object"},
    Entry{362, "Can't unload controls created at design time"},
    Entry{363, "Custom control not found"},
    Entry{364, "Object was unloaded"},
    Entry{365, "Unable to unload within this context"},
    Entry{368, "The specified file is out of date. This program requires a later version"},
    Entry{371, "The specified object can't be used as an owner form for Show"},
    Entry{380, "Invalid property value"},
    Entry{381, "Invalid property array index"},
    Entry{382, "Property set can't be executed at run time"},
    Entry{383, "Property set can't be used with a read-only property"},
    Entry{385, "Need property array index"},
    Entry{387, "Property set not permitted"},
    Entry{393, "Property get can't be executed at run time"},
    Entry{394, "Property get can't be executed on write-only property"},
    Entry{400, "Form already displayed; can't show modally"},
    Entry{401, "Can't show non-modal form when modal form is displayed"},
    Entry{402, "Code must close topmost modal form first"},
    Entry{419, "Permission to use object denied"},
    Entry{422, "Property not found"},
    Entry{423, "Property or method not found"},
    Entry{424, "Object required"},
    Entry{425, "Invalid object use"},
    Entry{429, "ActiveX component can't create object or return reference to this object"},
    Entry{430, "Class doesn't support Automation"},
    Entry{432, "File name or class name not found during Automation operation"},
    Entry{438, "Object doesn't support this property or method"},
    Entry{440, "Automation error"},
    Entry{445, "Object doesn't support this action"},
    Entry{446, "Object doesn't support named arguments"},
    Entry{447, "Object doesn't support current locale setting"},
    Entry{448, "Named argument not found"},
    Entry{449, "Argument not optional or invalid property assignment"},
    Entry{450, "Wrong number of arguments or invalid property assignment"},
    Entry{451, "Object not a collection"},
    Entry{452, "Invalid ordinal"},
    Entry{453, "Specified DLL function not found"},
    Entry{454, "Code resource not found"},
    Entry{455, "Code resource lock error"},
    Entry{457, "This key is already associated with an element of this collection"},
    Entry{460, "Invalid Clipboard format"},
    Entry{461, "Specified format doesn't match format of data"},
    Entry{480, "Can't create AutoRedraw image"},
    Entry{481, "Invalid picture"},
    Entry{482, "Printer error"},
    Entry{483, "Printer driver does not support specified property"},
    Entry{484,
          "Problem getting printer information from the system. Make sure the printer is set up correctly"},
    Entry{485, "Invalid picture type"},
    Entry{486, "Can't print form image to this type of printer"},
    Entry{520, "Can't empty Clipboard"},
    Entry{521, "Can't open Clipboard"},
    Entry{735, "Can't save file to TEMP directory"},
    Entry{744, "Search text not found"},
    Entry{746, "Replacements too long"},
};

static_assert(std::is_sorted(entries.begin(), entries.end(),
                             [](const Entry& a, const Entry& b) { return a.number < b.number; }));

int pendingNumber = 0;

} // namespace

QString RunTimeError::Text() const
{
    return RunTimeErrorText(number_);
}

void Fail(int number)
{
    throw RunTimeError(number);
}

QString RunTimeErrorText(int number)
{
    const auto* found =
        std::lower_bound(entries.begin(), entries.end(), number,
                         [](const Entry& entry, int wanted) { return entry.number < wanted; });
    if (found == entries.end() || found->number != number)
        return u"Application-defined or object-defined error"_s;
    return QString::fromLatin1(found->text);
}

int PendingErrorNumber()
{
    return pendingNumber;
}

PendingError::PendingError(int number) : before_(pendingNumber)
{
    pendingNumber = number;
}

PendingError::~PendingError()
{
    pendingNumber = before_;
}

} // namespace torvik
