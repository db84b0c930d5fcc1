/* KestToolHost.h: what hosts and tools of this library agree on beyond the tool record. A tool that works on the host's
 * current image goes by it; so does a host that offers such tools.
 */
#pragma once

#include <windows.h>

/* `pData` of a tool's main function is the address of a variable of the host of type CcImage*: its current image, or
 * null while there is none. The variable outlives the tool's windows; the tool reads it anew whenever it needs the
 * image, and keeps no pointer to the image from one message to the next. */

/** Message to all tools: the current image is another one, or is gone. Sent after the variable has changed, and before
 * an image is deleted that was current. Both parameters are 0. */
#define KEST_TOOL_IMAGE_CHANGED (WM_APP + 1)
/** Message to all tools: the pixels of the current image have changed. Both parameters are 0. A tool that has changed
 * them itself sends it to the host's window (the window handle of its main function); the host then shows the picture
 * anew and tells all tools. */
#define KEST_TOOL_PIXELS_CHANGED (WM_APP + 2)
