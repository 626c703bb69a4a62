// Stands by itself, so that a program which has its own loader links no OpenCV.

#include "image/imageloadcv.h"
#include "image/imageloadregistry.h"

ImageLoadRegistry::ImageLoadRegistry()
    : ImageLoadRegistry(std::make_unique<ImageLoadCv>())
{
}
