// What the tests of the rules have at hand.
#pragma once

#include <algorithm>
#include <array>
#include <map>
#include <span>
#include <tuple>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/cases.h"
#include "fakes/cell_picture.h"
#include "fakes/comes_true.h"
#include "fakes/environment.h"
#include "fakes/fake_platform.h"
#include "fakes/random_numbers.h"
#include "fakes/sample_projects.h"
#include "fakes/temporary_folder.h"
#include "model/drawing_modes.h"
#include "model/project_file.h"
#include "model/segments.h"
#include "model/text_forms.h"
