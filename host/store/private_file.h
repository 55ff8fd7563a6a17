#pragma once

#include <string>

namespace orvendal {

/// Makes the folder of a file, if need be, and the file, empty, if it is not there. The file and the side
/// files that a store has are for their owner alone from here on; so is the folder if it was made here or is
/// the program's own, a folder `orvendal` that is no link. What the system does not let be changed stays as
/// it is: whoever opens the file will tell. `path` is UTF-8.
void MakePrivateFile(const std::string& path);

}  // namespace orvendal
