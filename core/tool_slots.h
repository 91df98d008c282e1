#pragma once

// The twelve buttons of the main toolbar, in their order; the index of ToolVisible and
// ToolEnabled.
enum ToolSlot : int {
    ToolOpen = 0,
    ToolNew = 1,
    ToolSave = 2,
    ToolRecreate = 3,
    ToolUndo = 4,
    ToolRedo = 5,
    ToolCut = 6,
    ToolCopy = 7,
    ToolPaste = 8,
    ToolPrint = 9,
    ToolZoom = 10,
    ToolHelp = 11,
};
