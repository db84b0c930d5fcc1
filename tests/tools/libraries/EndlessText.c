/* A tool that fills its menu text to the last byte, without a terminator, and nothing else. In C of 1999. */
#include <KestTool.h>

KEST_TOOL_EXPORT void KestInitialize(tagToolInfo* pInfo) {
    for (int i = 0; i < KEST_TOOL_TEXT_SIZE; ++i) pInfo->szMenuText[i] = 'x';
}
