@echo off
rem Takes tslnmaint5.Library back from this machine, without a trace. Needs an administrator's rights.
regsvr32 /u %1 "%~dp0tslnmaint5.dll"
