#pragma once

/**
 * As long as one lives, opening a file, changing a folder and starting a process end the program, since reading a text
 * that is data must do none of that.
 */
class FFileGuard {
 public:
    FFileGuard();
    ~FFileGuard();
    FFileGuard(const FFileGuard&) = delete;
    FFileGuard& operator=(const FFileGuard&) = delete;

    /** Ends the program unless the guard sees how Qt opens a file and starts a process. */
    static void checkItself();
};
