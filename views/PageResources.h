// Numbers of the pages' dialog templates and of the controls in them, for the resource compiler and for C++.
#pragma once

#define IDD_LIST_PAGE 129
#define IDD_HISTOGRAM_PAGE 135
#define IDD_DASH_PAGE 142
#define IDD_MONITOR_PAGE 143

#define IDC_DASH_COMBO 1009

#define IDC_LIST_VIEW 1000
#define IDC_LIST_COMBO 1006

#define IDC_HISTOGRAM_COMBO 1002
#define IDC_HISTOGRAM_VIEW 1003
#define IDC_HISTOGRAM_GRID 1004
#define IDC_HISTOGRAM_CLEAR 1005
#define IDC_HISTOGRAM_CHART 1006
#define IDC_HISTOGRAM_GRAPH 1007
