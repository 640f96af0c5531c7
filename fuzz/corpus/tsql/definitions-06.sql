ALTER TABLE [dbo].[t]  ALTER COLUMN [c] nvarchar(150) COLLATE Latin1_General_CI_AS NOT NULL
