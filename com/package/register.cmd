@echo off
rem Registers tslnmaint5.Library on this machine. Needs administrator rights.
regsvr32 %1 "%~dp0tslnmaint5.dll"
