// Records and status codes that the whole library shares. Needs no platform header.
// All records are little-endian in files and streams, in exactly the layout given here.
#pragma once

/// Size of an object name, a CcString value or a file path, its terminator included.
constexpr int KEST_NAME_SIZE = 260;

/// What the operations of the object model return. The other classes return KEST_OK and KEST_FAILED, but for a Load
/// that passes a stream's code on.
enum KestStatus : int {
    KEST_OK = 0,
    KEST_FAILED = -1,         ///< the operation failed, or an operation it called did
    KEST_NULL_ARGUMENT = -2,  ///< a required pointer is null
    KEST_BAD_LENGTH = -3,     ///< a length, size or position is out of range, or a name is too long
    KEST_BAD_TAG = -4,        ///< a record does not begin with its tag
    KEST_NO_MEMORY = -5,      ///< memory could not be allocated
    KEST_NOT_GROWABLE = -6,   ///< the block belongs to the caller and cannot grow
    KEST_NOT_FOUND = -7,      ///< no such entry, or a read past the end
    KEST_MISMATCH = -8,       ///< wrong class, or a buffer smaller than the value
    KEST_OPEN_FAILED = -9,    ///< the file could not be opened
    KEST_READ_FAILED = -10,   ///< the file read failed or ended early
    KEST_WRITE_FAILED = -11,  ///< the file write failed or ended early
    KEST_ALREADY_OPEN = -12,  ///< the stream has a file open already
    KEST_NOT_OPEN = -13,      ///< the stream has no file open
    KEST_AT_START = -14,      ///< a file stream was rewound to position 0 (its success)
};

/// What CcHLObject::GetType returns.
enum KestObjectType : int {
    KEST_TYPE_NONE = 0,         ///< CcPropertyBag
    KEST_TYPE_IMAGE = 1,        ///< every image class
    KEST_TYPE_ROI = 2,          ///< every ROI class
    KEST_TYPE_CURVE = 3,        ///< CcCurve
    KEST_TYPE_GRAPH = 4,        ///< CcGraph
    KEST_TYPE_LIST = 5,         ///< CcList
    KEST_TYPE_CALIBRATION = 6,  ///< CcCalibration
    KEST_TYPE_NUMBER = 7,       ///< CcNumber
    KEST_TYPE_STRING = 8,       ///< CcString
};

/// Why no image class opens a picture file as it is meant, in the order in which a file is judged (see
/// KestPictureFile.h).
enum KestPictureReason : int {
    KEST_PICTURE_OPENS = 0,         ///< a class does
    KEST_PICTURE_NOT_READ = 1,      ///< no file, a path of more than 259 characters, or the system does not give it out
    KEST_PICTURE_NOT_BMP = 2,       ///< it does not begin with "BM"
    KEST_PICTURE_CUT_SHORT = 3,     ///< it has fewer bytes than its header says
    KEST_PICTURE_TOO_LARGE = 4,     ///< more than 65535 columns or rows, or more bytes than a block can have
    KEST_PICTURE_OTHER_HEADER = 5,  ///< its info header has not the form of 40 bytes
    KEST_PICTURE_COMPRESSED = 6,    ///< its pixels are compressed or have masks
    KEST_PICTURE_OTHER_DEPTH = 7,   ///< it has neither 8 nor 24 bits a pixel
    KEST_PICTURE_TOP_DOWN = 8,      ///< its top row comes first
    KEST_PICTURE_PADDED = 9,        ///< its rows are padded to multiples of four bytes
    KEST_PICTURE_WRONG_SIZES = 10,  ///< its sizes contradict each other, or it has no pixels
    KEST_PICTURE_OTHER_COLOURS = 11,  ///< with 8 bits a pixel other than 256 colours, with 24 any
    KEST_PICTURE_PIXELS_APART = 12,   ///< its pixels do not follow the header and its colours at once
    KEST_PICTURE_SAMPLES_NOT_READ =
        13  ///< samples that could be its own are beside it, but the system does not give them out
};

/// A point of two single-precision coordinates: a table point (input, level), an image point or a world point.
struct tagPoints {
    float x;  ///< horizontal coordinate, or a table's input value
    float y;  ///< vertical coordinate, or the level that the table gives
};

/// One band of multi-band thresholding: the values from fLow to fHigh, both included, are shown in the colour.
struct ThresholdTag {
    float fLow;   ///< smallest value of the band
    float fHigh;  ///< largest value of the band
    /// Colour components 0 to 255; others are cut to that by gray images, to their low 8 bits by colour images.
    int iRed;
    int iGreen;  ///< as iRed
    int iBlue;   ///< as iRed
};

/// A run of neighbouring columns (or rows), both ends included.
struct KestSpan {
    int iFirst;  ///< first column (or row) of the run
    int iLast;   ///< last column (or row) of the run
};

/// The type of a property bag's value; it stands in every stream.
enum KestPropertyType : int {
    KEST_PROPERTY_INT = 0,     ///< 4 bytes
    KEST_PROPERTY_LONG = 1,    ///< 4 bytes
    KEST_PROPERTY_FLOAT = 2,   ///< 4 bytes
    KEST_PROPERTY_DOUBLE = 3,  ///< 8 bytes
    KEST_PROPERTY_STRING = 4,  ///< the characters and their terminator
    KEST_PROPERTY_BLOB = 5,    ///< any bytes
};

/// One entry of a property bag's table, in memory and in a stream: 272 bytes.
struct tagPROPERTY {
    char szPropName[KEST_NAME_SIZE];  ///< NUL-terminated, at most 259 characters
    int iPropType;                    ///< one of KestPropertyType
    int iPropOffset;                  ///< of the value's first byte in the bag's buffer
    int iPropLength;                  ///< bytes of the value, at least 1
};
static_assert(sizeof(tagPROPERTY) == 272);

/// Opens an object's record in a stream: 128 bytes.
struct tagOST_OBJECTHEADER {
    char szTag[17];         ///< "OST_OBJECTHEADER"
    char szClassName[50];   ///< NUL-terminated, at most 49 characters
    char szObjectName[50];  ///< NUL-terminated, at most 49 characters
    char cReserved[11];     ///< written as zeros, never read
};
static_assert(sizeof(tagOST_OBJECTHEADER) == 128);

/// Closes an object's record in a stream: 117 bytes.
struct tagOST_OBJECTFOOTER {
    char szTag[17];         ///< "OST_OBJECTFOOTER"
    char szClassName[50];   ///< as in the header
    char szObjectName[50];  ///< as in the header
};
static_assert(sizeof(tagOST_OBJECTFOOTER) == 117);
