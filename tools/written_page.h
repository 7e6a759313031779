#pragma once

#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>

// True when the file holds the text, after writing it unless only checking; else says what is to be run.
inline bool holdsOrWrites(const std::string& path, const std::string& text, bool checkOnly, const char* program) {
    const auto onDisk = [&path] {
        std::ostringstream read;
        read << std::ifstream(path, std::ios::binary).rdbuf();
        return read.str();
    };
    if (onDisk() == text) return true;
    if (!checkOnly) {
        std::ofstream(path, std::ios::binary) << text;
        if (onDisk() == text) return true;
    }
    std::fprintf(stderr, "%s is not up to date: run %s\n", path.c_str(), program);
    return false;
}
