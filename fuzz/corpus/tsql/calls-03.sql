SELECT current_timestamp as SDate, GETDATE(), @@SPID
