-- Texts of numbered errors. The comment is what a user can do about it.
INSERT INTO vcErrorMessages ([Suite], [ErrorNo], [Message], [Comment]) VALUES
    ('VELMARA', 100001, 'The database did not answer in time.', 'Try again in a moment. If other tills work, check the network cable of this one.'),
    ('VELMARA', 100002, 'The record has been removed by another user.', 'Refresh the list and look for the record again.'),
    ('VELMARA', 100003, 'The document number could not be generated.', 'Ask your supervisor to check the number series of this branch.'),
    ('VELMARA', 100412, 'No access number was passed for verification.', ''),
    ('VELMARA', 100414, 'The supervisor does not have sufficient rights.', 'Ask a supervisor whose group may grant this right.'),
    ('VELMARA', 900002, 'There are no companies or branches loaded on the system.', 'The installation has to list them first. Call the help desk.'),
    ('VELMARA', 900004, 'The version of this program could not be read.', 'Check that the common database can be reached from this workstation.');
GO
