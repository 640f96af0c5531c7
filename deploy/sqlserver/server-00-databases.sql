-- For a real server only: the three databases, if they are not there. The order of text does not
-- tell upper from lower case, since the suite spells names in several cases, but tells accents.
IF DB_ID(N'VELCOMMON') IS NULL
    CREATE DATABASE [VELCOMMON] COLLATE Latin1_General_CI_AS;
GO
IF DB_ID(N'VELSUITE') IS NULL
    CREATE DATABASE [VELSUITE] COLLATE Latin1_General_CI_AS;
GO
IF DB_ID(N'VELTILL') IS NULL
    CREATE DATABASE [VELTILL] COLLATE Latin1_General_CI_AS;
GO
