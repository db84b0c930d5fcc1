// What the tool library "RecordingTool" was told, in a record of the test that opens it.
#pragma once

#include <KestTool.h>

struct ToolCall {
    int function;  // 'm' main, 's' message, 'p' second message, 'c' close
    UINT message;
    UINT wParam;
    LONG lParam;
};

struct ToolLog {
    tagToolInfo received;  // the record as it arrived
    int count;
    ToolCall calls[8];
};
