// The results that the program's operations give instead of exceptions.
#pragma once

#include <string>

enum : int {
    RESULT_DONE = 0,
    RESULT_CANNOT_OPEN = 1,   // a file to read does not open
    RESULT_CANNOT_WRITE = 3,  // a file to write could not be written whole
    RESULT_CANNOT_READ = 4,   // a file to read opens but holds nothing the reader can use
};

// What a write gives: RESULT_DONE, or another result with "<path>: <reason>" in error. It
// compares with a result code, so a caller that only needs to know whether the write succeeded
// tests it as it tests any other result.
struct CWriteResult {
    int code = RESULT_DONE;
    std::string error;

    bool Done() const { return code == RESULT_DONE; }
    friend bool operator==(const CWriteResult& result, int code) { return result.code == code; }
};
