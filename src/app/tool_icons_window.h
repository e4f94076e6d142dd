// The icons of the tool bar.
#pragma once

#include "platform/qt_drawn_icon.h"

namespace tidemark {

IconShapes UndoIcon();
IconShapes RedoIcon();
IconShapes ZoomOutIcon();
IconShapes ZoomInIcon();
IconShapes ZoomWholeIcon();
IconShapes MarksIcon();
IconShapes GoToIcon();
IconShapes ShowChosenIcon();
IconShapes DrawByKeysIcon();
IconShapes FillCoastIcon();
IconShapes ClearCoastIcon();
IconShapes CoastCheckIcon();
IconShapes ImportCoastIcon();

}  // namespace tidemark
