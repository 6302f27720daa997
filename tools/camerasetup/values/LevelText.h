#pragma once

#include "CvxCPP/Node.h"

#include <QString>

#include <array>

/// The levels that a person can choose.
constexpr std::array<CvxCPP::NodeVisibility, 3> shownLevels{
    CvxCPP::NodeVisibility::Beginner, CvxCPP::NodeVisibility::Expert, CvxCPP::NodeVisibility::Guru};

/// Returns the name of a level for people.
QString levelText(CvxCPP::NodeVisibility level);
