#pragma once

/// How complete the result of a search is.
enum class SearchKind
{
    Short, ///< The search was too short for slow cameras and may have missed some.
    Background, ///< The search gave every camera the time to answer, but single answers may have been lost.
    SelfUpdating ///< The producer keeps its camera list itself and decides when a camera has gone.
};
