@echo off
rem Removes the registration of tslnmaint5.Library. Needs administrator rights.
regsvr32 /u %1 "%~dp0tslnmaint5.dll"
