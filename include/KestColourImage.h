// What the headers of the two colour images share.
#pragma once

/// The members that the images of three bytes a pixel have in common, and what differs between them (internal).
template <class Image>
struct KestDib24Members;
template <class Image>
struct KestDib24Traits;
