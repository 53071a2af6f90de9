@echo off
rem Makes tslnmaint5.Library known to this machine. Needs an administrator's rights.
regsvr32 %1 "%~dp0tslnmaint5.dll"
