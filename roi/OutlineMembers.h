// The members that the four freehand classes have in common: drawing with the mouse, moving, showing, queries, files and
// streams. What differs stands in each class's KestOutlineTraits, in OutlineTraits.h:
//
//   className, recordKey, pointsKey, typeCode   what names the class in streams and files
//   isClosed                                    whether the last point is joined with the first
//   hasVertices                                 whether a segment ends only at a clicked vertex
//   order                                       what a row of the outline lists
//   PerimeterRecord                             the record of the class-wide work arrays
#pragma once

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <new>
#include <optional>

#include "CcObjectStorage.h"
#include "CcPropertyBag.h"
#include "CcRoiRows.h"
#include "core/ClassName.h"
#include "core/GdiGuards.h"
#include "core/kernel/ByteReader.h"
#include "core/kernel/NameCounter.h"
#include "roi/ClassWide.h"
#include "roi/DisplayArguments.h"
#include "roi/KeptRoi.h"
#include "roi/MouseDrag.h"
#include "roi/OutlineDrag.h"
#include "roi/OutlineDrawing.h"
#include "roi/OutlineTraits.h"
#include "roi/RoiFiles.h"
#include "roi/RoiStreams.h"
#include "roi/kernel/DragGeometry.h"
#include "roi/kernel/HitTest.h"
#include "roi/kernel/OutlineBounds.h"
#include "roi/kernel/OutlineIndex.h"
#include "roi/kernel/OutlineRaster.h"

template <class Roi>
struct KestOutlineMembers {
    using Traits = KestOutlineTraits<Roi>;
    using Display = kest::DisplayArguments;
    static constexpr int pointBytes = sizeof(POINT);
    static constexpr int storedRecordBytes = 24;

    static std::span<const kest::IntPoint> Pixels(const Roi& roi) {
        return kest::PixelsOf(roi.stImageFreeHand, roi.hPoints.Size());
    }

    // Life

    static void Construct(Roi& roi, const char* namePattern, int& namingCounter) {
        roi.iROIType = Traits::typeCode;
        std::snprintf(roi.szObjectName, sizeof roi.szObjectName, namePattern,
                      kest::NextNumber(namingCounter));
        roi.stImageFreeHand = {};
        TakeColour(roi, Roi::stUnSelectedColor);
        roi.iSegIndex = 0;
        roi.stLastMouse = roi.stLastMouseImg = {};
        roi.iDragMode = -1;
        const kest::ClassWideGuard guard;
        ++Roi::iNumOfFreeHandROIs;
    }

    static void Destroy(Roi& roi) {
        kest::AbandonDrag(roi.hDragDC, roi.iDragMode);
        const kest::ClassWideGuard guard;
        // Copies are not counted when they are made, so the count can fall below 0.
        if (--Roi::iNumOfFreeHandROIs > 0) return;
        Roi::iNumOfFreeHandROIs = 0;
        ReleaseClassBlock(Roi::stWindowFreeHand.hPOINTS);
        Roi::stWindowFreeHand = {};
        Roi::iSizeOfWindowFreeHand = 0;
        ReleaseWorkArrays();
    }

    // Drawing and moving with the mouse

    /// An outline has no rectangle to take from `source`, which mode 0 needs all the same.
    static int StartDrag(Roi& roi, HWND window, const Display& display, POINT mouse, int mode, CcRoiBase* source) {
        roi.iZoom = display.zoom;
        if (!kest::BeginDrag(window, roi.hDragDC, roi.iDragMode, mode)) return KEST_FAILED;
        std::optional<kest::View> view;
        if (!display.MakeDragView(window, view)) {
            kest::EndDrag(roi.hDragDC, roi.iDragMode);
            return KEST_FAILED;
        }
        kest::IntRect range = kest::ClientOnScreen(window);
        // A message that was shown lets the host do anything, also end the drag.
        if (!kest::GoesOn(roi.hDragDC, roi.iDragMode)) return KEST_FAILED;
        const bool isMove = (mode == KEST_DRAG_CONVERT && source) || mode == KEST_DRAG_MOVE;
        if (!isMove && mode != KEST_DRAG_CREATE) {
            roi.iDragMode = -1;
            return KEST_FAILED;
        }
        const RECT* bounds = isMove ? roi.GetBoundingRect() : nullptr;
        if (isMove && !bounds) {
            kest::EndDrag(roi.hDragDC, roi.iDragMode);
            return KEST_FAILED;
        }
        if (isMove && view) {
            const kest::IntPoint low = kest::ImageToWindow(*view, kest::IntPoint{bounds->left, bounds->top});
            const kest::IntPoint high = kest::ImageToWindow(*view, kest::IntPoint{bounds->right, bounds->bottom});
            range = kest::ClipForMove(range, {low.x, low.y, high.x, high.y}, kest::ToPoint(mouse));
        }
        kest::ConfineCursor(range);

        roi.stLastMouse = mouse;
        roi.stLastMouseImg = {};
        if (view) roi.stLastMouseImg = ImagePoint(*view, mouse);
        if (isMove) {
            DrawMoving(roi, view);
        } else {
            roi.iSegIndex = 0;
            Segments(roi).BeginAt(mouse, roi.stLastMouseImg);
        }
        return KEST_OK;
    }

    static int ContinueDrag(Roi& roi, HWND window, const Display& display, POINT mouse, int addVertex) {
        std::optional<kest::View> view;
        if (!kest::GoesOn(roi.hDragDC, roi.iDragMode) || !display.MakeDragView(window, view)) return KEST_FAILED;
        if (roi.iDragMode != KEST_DRAG_CREATE) {
            MoveByMouse(roi, view, mouse, true);
            return KEST_OK;
        }
        const kest::SegmentArrays segments = Segments(roi);
        segments.Draw(roi.hDragDC);
        EndSegment(roi, view, mouse);
        segments.Draw(roi.hDragDC);
        if (Traits::hasVertices && addVertex != 1) return KEST_OK;
        if (!segments.Advance()) {
            kest::TellSegmentLimit();
            return KEST_FAILED;
        }
        segments.Draw(roi.hDragDC);
        return KEST_OK;
    }

    static int StopDrag(Roi& roi, HWND window, const Display& display, POINT mouse) {
        if (!kest::GoesOn(roi.hDragDC, roi.iDragMode)) return KEST_FAILED;
        const bool isCreation = roi.iDragMode == KEST_DRAG_CREATE;
        std::optional<kest::View> view;
        const bool isThere = display.MakeDragView(window, view);
        if (isCreation)
            Segments(roi).Draw(roi.hDragDC);
        else
            MoveByMouse(roi, view, mouse, false);
        kest::EndDrag(roi.hDragDC, roi.iDragMode);
        if (!isThere) return KEST_FAILED;
        if (isCreation) {
            EndSegment(roi, view, mouse);
            Segments(roi).KeepPixel();
            if (roi.iSegIndex > KEST_MAX_SEGMENTS - 2) {
                kest::TellSegmentLimit();
                return KEST_FAILED;
            }
            if (Traits::isClosed) Segments(roi).Close();
            if (!TakeDrawnSegments(roi)) return KEST_FAILED;
        }
        roi.ShowROI(window, display.xOffset, display.yOffset, display.mode, display.image, display.zoom, -1);
        return KEST_OK;
    }

    // Showing

    static int Show(Roi& roi, HDC dc, int clientWidth, int clientHeight, const Display& display, int penSelect) {
        kest::View view;
        if (!dc || !display.MakeView(clientWidth, clientHeight, view)) return KEST_FAILED;
        const HPEN selected = roi.PenFor(penSelect);
        TakeColour(roi, selected == Roi::hSelectedPen ? Roi::stSelectedColor : Roi::stUnSelectedColor);
        const kest::SelectedObject pen(dc, selected);
        const kest::SelectedObject brush(dc, GetStockObject(NULL_BRUSH));
        kest::DrawOutlinePixels(dc, view, Pixels(roi), Traits::isClosed);
        return KEST_OK;
    }

    static int Show(Roi& roi, HDC dc, const RECT* rect, const Display& display, int penSelect) {
        if (!rect) return KEST_FAILED;
        return Show(roi, dc, rect->right, rect->bottom, display, penSelect);
    }

    static int Show(Roi& roi, HDC dc, HWND window, const Display& display, int penSelect) {
        int width, height;
        if (!kest::GetClientSize(window, width, height)) return KEST_FAILED;
        return Show(roi, dc, width, height, display, penSelect);
    }

    // Queries

    static int HitTest(Roi& roi, HWND window, const Display& display, POINT mouse) {
        kest::View view;
        if (Pixels(roi).empty() || !display.MakeView(window, view)) return KEST_FAILED;
        const kest::IntPoint position = kest::WindowToImage(view, kest::ToPoint(mouse));
        if (!Traits::isClosed) return kest::IsAnyNear(Pixels(roi), position, kest::LineTolerance(view)) ? 0 : -1;
        if (!roi.GetBoundingRect()) return KEST_FAILED;
        CcRoiRows rows(&roi);
        int count = 0;
        const KestSpan* spans = rows.GetSpans(position.y, &count);
        const bool isHit = std::any_of(spans, spans + std::max(count, 0), [&position](const KestSpan& span) {
            return span.iFirst <= position.x && position.x <= span.iLast;
        });
        return isHit ? 0 : KEST_FAILED;
    }

    static RECT* CurrentBounds(Roi& roi) {
        if (Pixels(roi).empty()) return nullptr;
        roi.stCurrentBoundingRect = kest::FromRect(kest::OutlineBounds(Pixels(roi)));
        return &roi.stCurrentBoundingRect;
    }

    static RECT* Bounds(Roi& roi) {
        roi.stQueries.iSortedPoints = 0;
        const std::span<const kest::IntPoint> pixels = Pixels(roi);
        if (pixels.empty()) return nullptr;
        roi.stBoundingRect = kest::FromRect(kest::OutlineBounds(pixels));
        if (!roi.SizeBoundary() || !SizeWorkArrays(static_cast<int>(pixels.size()))) return nullptr;
        return SortRows(roi, roi.stBoundingRect) == Query::Sorted ? &roi.stBoundingRect : nullptr;
    }

    static int* ListRow(Roi& roi, int row, int* count) {
        const Query query = IsThere(Roi::stXCommonPerimPoints) ? SortRows(roi) : Query::Nothing;
        if (query != Query::Sorted) return Unlisted(roi, query, count);
        const kest::OutlineIndex* index = IndexIn(roi.stQueries.cRows);
        NoteRow(Roi::stXCommonPerimPoints, index->PixelsOfRow(row), [row](auto& record, int column) {
            record.x = column;
            record.y = row;
        });
        return List(roi, *index, row, count);
    }

    static int* ListColumn(Roi& roi, int column, int* count) {
        const Query query = IsThere(Roi::stYCommonPerimPoints) ? SortColumns(roi) : Query::Nothing;
        if (query != Query::Sorted) return Unlisted(roi, query, count);
        const kest::OutlineIndex* index = IndexIn(roi.stQueries.cColumns);
        NoteRow(Roi::stYCommonPerimPoints, index->PixelsOfRow(column), [column](auto& record, int row) {
            record.x = column;
            record.y = row;
        });
        return List(roi, *index, column, count);
    }

    /// The runs of a row, without the lists: how many, or KEST_FAILED when memory is short.
    static int SpansOfRow(Roi& roi, int row, KestHeapBlock& block) {
        const Query query = roi.PrepareCopy() ? SortRows(roi) : Query::NoMemory;
        if (query != Query::Sorted) return query == Query::NoMemory ? KEST_FAILED : 0;
        return TakeSpans(roi, *IndexIn(roi.stQueries.cRows), row, block);
    }

    // Record, files and streams

    static int TakeRecord(Roi& roi, const void* record) {
        PixelGroupTag source;
        if (!record) return KEST_FAILED;
        std::memcpy(&source, record, sizeof source);
        if (source.iNumOfPoints < 1 || !source.stPOINTS) return KEST_FAILED;
        return TakePoints(roi, source.stPOINTS, source.iNumOfPoints);
    }

    static void* RecordOf(Roi& roi) { return &roi.stImageFreeHand; }

    static int Save(Roi& roi, const char* path) {
        const auto pixels = Pixels(roi);
        return kest::WriteRoiFile(path, Traits::typeCode, static_cast<int>(pixels.size()), roi.szObjectName,
                                  pixels.data(), static_cast<long long>(pixels.size_bytes()));
    }

    static int Restore(Roi& roi, const char* path) {
        kest::RoiFile file;
        if (!kest::ReadRoiFile(path, Traits::typeCode, pointBytes, file)) return KEST_FAILED;
        PixelGroupTag record = {};
        record.iNumOfPoints = file.count;
        record.stPOINTS = reinterpret_cast<POINT*>(file.record.Get());
        // The file of an outline without points gives its name to another one, but takes no points away.
        const bool isTaken = file.count > 0 ? SetOrKeep(roi, record) : Pixels(roi).empty();
        if (!isTaken) return KEST_FAILED;
        roi.SetName(file.name);
        return KEST_OK;
    }

    static int Store(Roi& roi, CcObjectStorage* storage) {
        if (!storage) return KEST_FAILED;
        const auto pixels = Pixels(roi);
        std::uint8_t record[storedRecordBytes] = {};
        kest::ByteWriter writer(record);
        for (const int value : {roi.stImageFreeHand.iRed, roi.stImageFreeHand.iGreen, roi.stImageFreeHand.iBlue,
                                static_cast<int>(pixels.size())})
            writer.Write(value);
        CcPropertyBag bag;
        const bool isPut = bag.PutBlob(Traits::recordKey, record, sizeof record) == KEST_OK &&
                           (pixels.empty() || bag.ReferToBlob(Traits::pointsKey, pixels.data(),
                                                          static_cast<long>(pixels.size_bytes())) == KEST_OK);
        return !isPut || storage->PutObject(&bag) < 0 ? KEST_FAILED : KEST_OK;
    }

    static int Load(Roi& roi, CcObjectStorage* storage) {
        if (!storage) return KEST_FAILED;
        CcPropertyBag bag;
        if (storage->GetNextObject(&bag) < 0) return KEST_FAILED;
        std::uint8_t record[storedRecordBytes];
        if (!kest::TakeWholeBlob(bag, Traits::recordKey, record, sizeof record)) return KEST_FAILED;
        PixelGroupTag stored = {};
        kest::ByteReader reader(record);
        for (int* field : {&stored.iRed, &stored.iGreen, &stored.iBlue, &stored.iNumOfPoints}) reader.Read(*field);
        if (stored.iNumOfPoints < 0) return KEST_FAILED;
        KestGlobalBlock points;
        if (stored.iNumOfPoints > 0) {
            const kest::Size64 bytes = kest::Product(stored.iNumOfPoints, pointBytes);
            constexpr int blobTag = 5;
            long existing = 0;
            // A count that the stored points do not bear out costs no memory.
            if (bag.GetPropLength(Traits::pointsKey, blobTag, &existing) < 0 || existing != bytes ||
                !points.Allocate(bytes))
                return KEST_FAILED;
            bag.GetBlob(Traits::pointsKey, points.Get(), existing);
        }
        UsePoints(roi, points, stored.iNumOfPoints);
        roi.stImageFreeHand.iRed = stored.iRed;
        roi.stImageFreeHand.iGreen = stored.iGreen;
        roi.stImageFreeHand.iBlue = stored.iBlue;
        return KEST_OK;
    }

    /// The outline has no points from then on.
    static void MoveOut(Roi& roi, kest::KeptOutline& kept) {
        kept.record = roi.stImageFreeHand;
        kept.points.Release();
        UsePoints(roi, kept.points, 0);
    }

    static void MoveBack(Roi& roi, kest::KeptOutline& kept) {
        UsePoints(roi, kept.points, kept.record.iNumOfPoints);
        roi.stImageFreeHand.iRed = kept.record.iRed;
        roi.stImageFreeHand.iGreen = kept.record.iGreen;
        roi.stImageFreeHand.iBlue = kept.record.iBlue;
    }

    static int PrintPixels(Roi& roi, const char* path) {
        KestWholeFile file(path);
        char lines[4096];
        constexpr int longestLine = 40;  // three numbers of up to 11 characters, and what separates them
        int index = 0, used = 0;
        for (const kest::IntPoint& pixel : Pixels(roi)) {
            used += std::snprintf(lines + used, longestLine, "%d\t%d\t%d\r\n", index++, pixel.x, pixel.y);
            if (used + longestLine <= static_cast<int>(sizeof lines)) continue;
            file.Write(lines, used);
            used = 0;
        }
        file.Write(lines, used);
        file.Replace();
        kest::TellLostRoi(file);
        return file.GetResult() == KestWholeFile::NotWritten ? KEST_FAILED : KEST_OK;
    }

private:
    static kest::SegmentArrays Segments(Roi& roi) {
        return {Roi::stDrawSegStartPoint, Roi::stDrawSegStopPoint, Roi::stDrawSegStartPointImg,
                Roi::stDrawSegStopPointImg, roi.iSegIndex};
    }

    static POINT ImagePoint(const kest::View& view, POINT client) {
        const kest::IntPoint image = kest::WindowToImage(view, kest::ToPoint(client));
        return {image.x, image.y};
    }

    /// Without an image the last known image point stays.
    static void EndSegment(Roi& roi, const std::optional<kest::View>& view, POINT mouse) {
        if (view) roi.stLastMouseImg = ImagePoint(*view, mouse);
        roi.stLastMouse = mouse;
        Segments(roi).EndAt(mouse, roi.stLastMouseImg);
    }

    static void DrawMoving(Roi& roi, const std::optional<kest::View>& view) {
        if (view) kest::DrawOutlinePixels(roi.hDragDC, *view, Pixels(roi), Traits::isClosed);
    }

    static void MoveByMouse(Roi& roi, const std::optional<kest::View>& view, POINT mouse, bool drawAgain) {
        DrawMoving(roi, view);
        roi.stLastMouse = mouse;
        if (!view) return;
        const POINT image = ImagePoint(*view, mouse);
        const kest::Size64 dx = kest::Size64{image.x} - roi.stLastMouseImg.x;
        const kest::Size64 dy = kest::Size64{image.y} - roi.stLastMouseImg.y;
        roi.stQueries.iSortedPoints = 0;
        POINT* points = roi.stImageFreeHand.stPOINTS;
        for (std::size_t i = 0, count = Pixels(roi).size(); i < count; ++i) {
            points[i].x = kest::Saturate(points[i].x + dx);
            points[i].y = kest::Saturate(points[i].y + dy);
        }
        roi.stLastMouseImg = image;
        if (drawAgain) DrawMoving(roi, view);
    }

    static bool TakeDrawnSegments(Roi& roi) {
        const auto count = static_cast<std::size_t>(roi.iSegIndex) + 1;
        const std::span starts(reinterpret_cast<const kest::IntPoint*>(Roi::stDrawSegStartPointImg), count);
        const std::span ends(reinterpret_cast<const kest::IntPoint*>(Roi::stDrawSegStopPointImg), count);
        const kest::Size64 pixels = kest::RasterLength(starts, ends);
        KestGlobalBlock points;
        UsePoints(roi, points, 0);
        if (!points.Allocate(pixels * pointBytes)) return false;
        kest::RasteriseOutline(starts, ends,
                               {static_cast<kest::IntPoint*>(points.Get()), static_cast<std::size_t>(pixels)});
        UsePoints(roi, points, static_cast<int>(pixels));
        return true;
    }

    static int TakePoints(Roi& roi, const POINT* source, int count) {
        KestGlobalBlock points;
        const kest::Size64 bytes = kest::Product(count, pointBytes);
        if (points.Allocate(bytes))
            std::memcpy(points.Get(), source, static_cast<std::size_t>(bytes));
        else
            count = 0;
        UsePoints(roi, points, count);
        return count > 0 ? KEST_OK : KEST_FAILED;
    }

    /// As SetRoiImageCord, but when memory is short the outline keeps what it has.
    static bool SetOrKeep(Roi& roi, PixelGroupTag& record) {
        kest::KeptOutline kept;
        MoveOut(roi, kept);
        const bool isSet = roi.SetRoiImageCord(&record) >= 0;
        if (!isSet) MoveBack(roi, kept);
        return isSet;
    }

    static void UsePoints(Roi& roi, KestGlobalBlock& points, int count) {
        roi.hPoints.Swap(points);
        roi.stImageFreeHand.iNumOfPoints = count;
        roi.stImageFreeHand.stPOINTS = static_cast<POINT*>(roi.hPoints.Get());
        roi.stImageFreeHand.hPOINTS = roi.hPoints;
        roi.stQueries.iSortedPoints = 0;
    }

    static void TakeColour(Roi& roi, const RGBTRIPLE& colour) {
        roi.stImageFreeHand.iRed = colour.rgbtRed;
        roi.stImageFreeHand.iGreen = colour.rgbtGreen;
        roi.stImageFreeHand.iBlue = colour.rgbtBlue;
    }

    // The pixels sorted by row or column: an OutlineIndex in front of its memory, in a block of the object.

    static const kest::OutlineIndex* IndexIn(const KestHeapBlock& block) {
        return reinterpret_cast<const kest::OutlineIndex*>(block.Get());
    }

    /// What there is to answer a query from. Nothing: an outline without points, or not made ready by GetBoundingRect.
    enum class Query { Sorted, Nothing, NoMemory };

    static Query Sort(std::span<const kest::IntPoint> pixels, kest::Axis axis, int first, int last,
                      KestHeapBlock& block) {
        constexpr kest::Size64 front = (sizeof(kest::OutlineIndex) + 7) / 8 * 8;
        const kest::Size64 rows = kest::Size64{last} - first + 1;
        const kest::Size64 bytes = front + kest::OutlineIndex::BytesNeeded(std::ssize(pixels), rows);
        if (!block.Reserve(bytes)) return Query::NoMemory;
        auto* index = new (block.Get()) kest::OutlineIndex;
        index->Build(pixels, axis, Traits::order, first, rows, block.Get() + front);
        return Query::Sorted;
    }

    static Query SortRows(Roi& roi, const RECT& bounds) {
        KestOutlineQueries& queries = roi.stQueries;
        const std::span<const kest::IntPoint> pixels = Pixels(roi);
        queries.stBounds = bounds;
        queries.bColumnsSorted = false;
        const Query query = Sort(pixels, kest::Axis::Rows, bounds.bottom, bounds.top, queries.cRows);
        if (query == Query::Sorted) queries.iSortedPoints = static_cast<int>(pixels.size());
        return query;
    }

    /// Points that changed since GetBoundingRect are sorted when they are asked for.
    static Query SortRows(Roi& roi) {
        if (roi.stQueries.iSortedPoints > 0) return Query::Sorted;
        if (!roi.Boundary() || Pixels(roi).empty()) return Query::Nothing;
        return SortRows(roi, kest::FromRect(kest::OutlineBounds(Pixels(roi))));
    }

    /// Columns are sorted when the first of them is asked for.
    static Query SortColumns(Roi& roi) {
        const Query query = SortRows(roi);
        KestOutlineQueries& queries = roi.stQueries;
        if (query != Query::Sorted || queries.bColumnsSorted) return query;
        const Query columns = Sort(Pixels(roi), kest::Axis::Columns, queries.stBounds.left, queries.stBounds.right,
                                   queries.cColumns);
        queries.bColumnsSorted = columns == Query::Sorted;
        return columns;
    }

    static int* Unlisted(Roi& roi, Query query, int* count) {
        return query == Query::NoMemory ? roi.ListFailed(count) : roi.ListNothing(count);
    }

    /// `records` is a class-wide array, taken when no other thread has it.
    template <class Note>
    static void NoteRow(typename Traits::PerimeterRecord* const& records,
                        std::span<const kest::OutlineIndex::Entry> pixels, Note note) {
        const kest::ClassWideGuard guard;
        const auto room = static_cast<std::size_t>(Roi::iSizeOfCommonPerimPointsArr);
        for (std::size_t i = 0; i < std::min(pixels.size(), room); ++i) {
            note(records[i], pixels[i].Column());
            records[i].iIndex = pixels[i].Place();
        }
    }

    /// A row's runs as far as its list has room for them: how many, or KEST_FAILED when memory is short.
    static int TakeSpans(Roi& roi, const kest::OutlineIndex& index, int row, KestHeapBlock& block) {
        const auto pixels = static_cast<long long>(index.PixelsOfRow(row).size());
        if (pixels == 0) return 0;
        if (!block.Reserve(pixels * static_cast<long long>(sizeof(KestSpan)))) return KEST_FAILED;
        auto* spans = reinterpret_cast<KestSpan*>(block.Get());
        return kest::CutSpans(spans, index.SpansOfRow(row, spans), roi.BoundaryRoom());
    }

    /// Writing stops silently when the work buffer is full.
    static int* List(Roi& roi, const kest::OutlineIndex& index, int row, int* count) {
        const std::span<const kest::OutlineIndex::Entry> pixels = index.PixelsOfRow(row);
        if (!count || pixels.empty() || !roi.Boundary()) return roi.ListNothing(count);
        if (Traits::order == kest::RowOrder::Filled) return ListSpans(roi, index, row, count);
        const kest::Size64 entries = std::min<kest::Size64>(std::ssize(pixels), roi.BoundaryRoom());
        if (!roi.GrowBoundary(entries)) return roi.ListFailed(count);
        *count = static_cast<int>(entries);
        std::transform(pixels.begin(), pixels.begin() + *count, roi.piBoundary,
                       [](const kest::OutlineIndex::Entry& pixel) { return pixel.Column(); });
        return roi.piBoundary;
    }

    static int* ListSpans(Roi& roi, const kest::OutlineIndex& index, int row, int* count) {
        KestHeapBlock& block = roi.stQueries.cSpans;
        const int spanCount = TakeSpans(roi, index, row, block);
        if (spanCount < 0) return roi.ListFailed(count);
        const std::span spans(reinterpret_cast<const KestSpan*>(block.Get()), static_cast<std::size_t>(spanCount));
        kest::Size64 entries = 0;
        for (const KestSpan& span : spans) entries += kest::Size64{span.iLast} - span.iFirst + 1;
        if (!roi.GrowBoundary(entries)) return roi.ListFailed(count);
        *count = static_cast<int>(entries);
        int* next = roi.piBoundary;
        for (const KestSpan& span : spans)
            for (kest::Size64 x = span.iFirst; x <= span.iLast; ++x) *next++ = static_cast<int>(x);
        return roi.piBoundary;
    }

    // Class-wide blocks: the functions that make and release them.

    static bool MakeClassBlock(HGLOBAL& handle, typename Traits::PerimeterRecord*& records, kest::Size64 bytes) {
        ReleaseClassBlock(handle);
        records = nullptr;
        handle = kest::IsBlockSize(bytes) ? GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, static_cast<SIZE_T>(bytes))
                                          : nullptr;
        if (handle) records = static_cast<typename Traits::PerimeterRecord*>(GlobalLock(handle));
        if (handle && !records) ReleaseClassBlock(handle);
        return records != nullptr;
    }

    static void ReleaseClassBlock(HGLOBAL& handle) {
        if (handle) {
            GlobalUnlock(handle);
            GlobalFree(handle);
        }
        handle = nullptr;
    }

    /// While another thread makes a work array larger there is none.
    static bool IsThere(typename Traits::PerimeterRecord* const& records) {
        const kest::ClassWideGuard guard;
        return records != nullptr;
    }

    static bool SizeWorkArrays(int records) {
        const kest::ClassWideGuard guard;
        if (Roi::iSizeOfCommonPerimPointsArr >= records) return true;
        const kest::Size64 bytes = kest::Product(records, sizeof(typename Traits::PerimeterRecord));
        if (!MakeClassBlock(Roi::hstXCommonPerimPoints, Roi::stXCommonPerimPoints, bytes) ||
            !MakeClassBlock(Roi::hstYCommonPerimPoints, Roi::stYCommonPerimPoints, bytes)) {
            ReleaseWorkArrays();
            return false;
        }
        Roi::iSizeOfCommonPerimPointsArr = records;
        return true;
    }

    static void ReleaseWorkArrays() {
        ReleaseClassBlock(Roi::hstXCommonPerimPoints);
        ReleaseClassBlock(Roi::hstYCommonPerimPoints);
        Roi::stXCommonPerimPoints = nullptr;
        Roi::stYCommonPerimPoints = nullptr;
        Roi::iSizeOfCommonPerimPointsArr = 0;
    }
};
