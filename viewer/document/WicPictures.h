// Pictures that the system's imaging component (WIC) decodes: PNG, JPEG, TIFF, GIF, padded BMP and whatever is
// installed.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "document/ImageClasses.h"
#include "document/Question.h"

namespace kestview {

/// What opening a picture asks its user.
struct PictureQuestions {
    Question mayOpen;                    ///< whether to open what takes more than 512 MB
    std::function<int(int pages)> page;  ///< which of several pages, from 1; 0 for none. Without it, the first
};

/// Whether a picture is opened whose pixels take so many bytes: the user is asked from a certain size on. When nobody
/// can be asked, `error` tells it.
bool IsWanted(double bytes, const std::string& path, const PictureQuestions& ask, std::string& error);

/// A page, the right way up, in the class that loses nothing: black and white as binary, 8-bit gray, 16-bit gray,
/// float, and everything else as 24-bit RGB; what is transparent is put on white. Null, with the reason in plain words
/// unless the user chose so, when it cannot. `warning` gets what the user should know of the picture.
std::unique_ptr<CcImage> DecodePicture(const std::string& path, std::string& error, std::string& warning,
                                       const PictureQuestions& ask);

}  // namespace kestview
