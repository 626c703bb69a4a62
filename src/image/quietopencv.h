#pragma once

/// Keeps OpenCV's own log quiet while it lives; a refused file is told by the loader alone. The
/// level of that log belongs to the whole process: the first of several guards, in whatever
/// threads, stores it, and the last one to go restores it.
class QuietOpenCv
{
public:
    QuietOpenCv();
    ~QuietOpenCv();
    QuietOpenCv(const QuietOpenCv&) = delete;
    QuietOpenCv& operator=(const QuietOpenCv&) = delete;
};
