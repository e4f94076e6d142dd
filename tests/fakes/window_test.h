// What the tests of the windows have at hand.
#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalSpy>

#include "fakes/rules_test.h"
#include "walk/driver.h"
