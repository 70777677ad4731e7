# The dialogs of the main window. Their templates, Dialogs.rc, are compiled into each program that shows them.
corvex_library(corvex_dialogs
  SOURCES AboutBox.cpp FileDialogs.cpp Preferences.cpp
  LIBS corvex_proptree corvex_session comdlg32 user32)
