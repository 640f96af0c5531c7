UPDATE vcVersions SET [Version] = '2',[LastPCName] = 'PC' WHERE [Suite] = 'S'
