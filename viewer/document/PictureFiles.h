// Opening and saving pictures: the library's own files through the library, all others through the system's imaging
// component.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "document/ImageClasses.h"
#include "document/WicPictures.h"

namespace kestview {

/// Opens a picture that KestJudgePictureFile has judged: into the library's class for it, or through the imaging
/// component when there is none. Values that mean colours become those colours. Null, with the reason in plain words,
/// when it cannot. A warning tells what was left aside.
std::unique_ptr<CcImage> OpenPicture(const std::string& path, const KestPictureFile& file, std::string& error,
                                     std::string& warning, const PictureQuestions& ask = {});

/// Writes the picture in the format that the extension names: BMP (for wide images with the samples beside it), PNG,
/// TIFF or JPEG; any other, and a format that cannot hold the picture's values, is refused. What was there is replaced
/// when the new file is whole. On failure `error` is empty when the library has told the user, and there is nothing to
/// add.
bool SavePicture(CcImage& image, const std::string& path, std::string& error);
bool IsBmpPath(const std::string& path);
/// Whether the picture comes back from a file of this name with all that it has.
bool KeepsWholePicture(CcImage& image, const std::string& path);
/// Files beside `path` that would be taken for the samples of a picture saved there, but are not this one's.
std::vector<std::string> ForeignSamples(CcImage& image, const std::string& path);

/// "Pictures (*.bmp, ...)|*.bmp;...|..." for the open dialog; sessions included.
extern const char* const openFilters;
extern const char* const saveFilters;

}  // namespace kestview
