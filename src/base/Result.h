// The small integer results that the program's operations give instead of exceptions.
#pragma once

enum : int {
    RESULT_DONE = 0,
    RESULT_CANNOT_OPEN = 1,   // a file to read does not open
    RESULT_CANNOT_WRITE = 3,  // a file to write could not be written whole
};
