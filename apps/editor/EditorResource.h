// Numbers of the editor's resources, for its sources and its resource script alike.
#pragma once

#ifndef IDC_STATIC
#define IDC_STATIC (-1)
#endif

#define IDD_HEADER 100

#define IDC_FILE 1000
#define IDC_AUTHOR 1001
#define IDC_VERSION 1002
#define IDC_DESCRIPTION 1003
#define IDC_BAUD 1004
#define IDC_ECHO 1005
// Three each in a row, for connect, monitor and disconnect.
#define IDC_COMMAND 1010
#define IDC_COMMAND_MONITOR 1011
#define IDC_COMMAND_DISCONNECT 1012
#define IDC_BROWSE 1020
#define IDC_BROWSE_MONITOR 1021
#define IDC_BROWSE_DISCONNECT 1022
#define IDC_SAVE_AS 1030
