// Numbers of the main window's own dialog templates and of the controls in them, for the resource compiler and for C++.
#pragma once

#define IDD_COM_SETUP 131
#define IDD_GENERAL 132
#define IDD_KEYBOARD 144
#define IDD_ABOUT 145

#define IDD_LINK 150

#define IDC_PORT_DIGIT 1010
#define IDC_PORT_LIST 1011

#define IDC_ABOUT_VERSION 1012

#define IDC_LINK_TEXT 1013
#define IDC_LINK_COPY 1014
