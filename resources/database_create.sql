CREATE TABLE id_generator (
  id_table TEXT PRIMARY KEY,
  id_counter INTEGER NOT NULL
);

CREATE TABLE meta (
  key TEXT PRIMARY KEY,
  value TEXT NOT NULL
);

CREATE TABLE kal (
  id INTEGER NOT NULL PRIMARY KEY,
  projectname TEXT NOT NULL,
  projectnumber TEXT,
  logo_image_id INTEGER,
  logo_align INTEGER NOT NULL,
  logo2_image_id INTEGER NOT NULL DEFAULT 0,
  logo2_align INTEGER NOT NULL DEFAULT 0,
  headline_left TEXT NOT NULL,
  headline_center TEXT NOT NULL,
  headline_right TEXT NOT NULL,
  footer_left TEXT NOT NULL,
  footer_center TEXT NOT NULL,
  footer_right TEXT NOT NULL,
  email_subject TEXT NOT NULL,
  email_body TEXT NOT NULL,
  project_data_modified INTEGER DEFAULT 0
);

CREATE TABLE defect (
  id INTEGER NOT NULL PRIMARY KEY,
  number VARCHAR (64),
  description TEXT NOT NULL,
  company_id INTEGER,
  type TEXT,
  user_id TEXT,
  creation_date DATE,
  roomname TEXT,
  roombook_number TEXT,
  plan_info_id INTEGER DEFAULT -1,
  image_cnt INTEGER,
  correction_instruction TEXT,
  priority TEXT,
  correction_date DATE,
  deadline_1 DATE,
  deadline_2 DATE,
  deadline_3 DATE,
  status_id INTEGER DEFAULT 0,
  reduction INTEGER DEFAULT 0,
  plan_id INTEGER,
  site_journal_data_modified INTEGER DEFAULT 0,
  imported_report_id INTEGER DEFAULT -1,
  site_journal_id INTEGER DEFAULT -1,
  delete_on_import INTEGER DEFAULT 1
);

CREATE TABLE company (
  id INTEGER NOT NULL PRIMARY KEY,
  type VARCHAR (64) NOT NULL,
  firstname VARCHAR (64) NOT NULL,
  lastname VARCHAR (64) NOT NULL,
  company VARCHAR (128) NOT NULL,
  street VARCHAR (128) NOT NULL,
  plz VARCHAR (16) NOT NULL,
  city VARCHAR (64) NOT NULL,
  telephone VARCHAR (64) NOT NULL,
  telefax VARCHAR (64) NOT NULL,
  mobile VARCHAR (64) NOT NULL,
  email VARCHAR (128) NOT NULL,
  pos INTEGER NOT NULL,
  modified INTEGER DEFAULT 0,
  site_journal_id INTEGER DEFAULT -1,
  delete_on_import INTEGER DEFAULT 1
);

CREATE TABLE status (
  id INTEGER NOT NULL PRIMARY KEY,
  status TEXT NOT NULL,
  color TEXT NOT NULL,
  type INTEGER NOT NULL,
  reduction_option INTEGER NOT NULL,
  pos INTEGER NOT NULL
);

CREATE TABLE plan_info (
  id INTEGER NOT NULL PRIMARY KEY,
  plan_name TEXT,
  plan_index TEXT,
  date DATE,
  plan_id INTEGER,
  pos INTEGER NOT NULL
);

CREATE TABLE plan (
  id INTEGER NOT NULL PRIMARY KEY AUTOINCREMENT,
  plan BLOB NOT NULL,
  plan_ct TEXT NOT NULL,
  plan_width INTEGER,
  plan_height INTEGER,
  thumbnail BLOB NOT NULL,
  thumbnail_ct TEXT NOT NULL,
  thumbnail_width INTEGER NOT NULL,
  thumbnail_height INTEGER NOT NULL
);

CREATE TABLE marker (
  id INTEGER NOT NULL PRIMARY KEY AUTOINCREMENT,
  type INTEGER,
  pos_x REAL,
  pos_y REAL,
  scale_factor REAL,
  rotation_angle REAL,
  color1 TEXT,
  color2 TEXT,
  linewidth REAL,
  transform_point_x REAL,
  transform_point_y REAL,
  plan_info_id INTEGER,
  defect_id INTEGER
);

CREATE TABLE marker_text (
  id INTEGER NOT NULL PRIMARY KEY AUTOINCREMENT,
  pos_x REAL,
  pos_y REAL,
  scale_factor REAL,
  rotation_angle REAL,
  transform_point_x REAL,
  transform_point_y REAL,
  text TEXT,
  color TEXT,
  text_properties INTEGER,
  font_family TEXT,
  font_size INTEGER,
  plan_info_id INTEGER,
  defect_id INTEGER
);

CREATE TABLE photo_info (
  id INTEGER NOT NULL PRIMARY KEY,
  caption TEXT,
  comment TEXT,
  date DATE,
  defect_id INTEGER,
  image_id INTEGER,
  pos INTEGER NOT NULL,
  site_journal_data_modified INTEGER DEFAULT 0,
  site_journal_id INTEGER DEFAULT -1,
  delete_on_import INTEGER DEFAULT 1
);

CREATE TABLE image (
  id INTEGER NOT NULL PRIMARY KEY AUTOINCREMENT,
  image BLOB NOT NULL,
  image_ct TEXT NOT NULL,
  image_width INT NOT NULL,
  image_height INT NOT NULL,
  thumbnail BLOB NOT NULL,
  thumbnail_ct TEXT NOT NULL,
  thumbnail_width INT NOT NULL,
  thumbnail_height INT NOT NULL
);

CREATE TABLE addresslist (
  id INTEGER NOT NULL PRIMARY KEY,
  name TEXT NOT NULL
);

CREATE TABLE addresslist_item (
  id INTEGER NOT NULL PRIMARY KEY,
  addresslist_id INTEGER NOT NULL,
  active INTEGER NOT NULL,
  bcc INTEGER NOT NULL,
  type VARCHAR (64) NOT NULL,
  lastname VARCHAR (64) NOT NULL,
  company VARCHAR (128) NOT NULL,
  email VARCHAR (128) NOT NULL
);

CREATE TABLE filter_state (
  id INTEGER NOT NULL PRIMARY KEY,
  key TEXT NOT NULL,
  value TEXT,
  date DATE
);

CREATE TABLE imported_report (
  id INTEGER NOT NULL PRIMARY KEY,
  site_journal_id INTEGER DEFAULT -1,
  number TEXT,
  locked INTEGER DEFAULT -1,
  user_id TEXT,
  creation_date DATETIME,
  exported_by_app INTEGER DEFAULT -1,
  import_version DATETIME,
  delete_on_import INTEGER DEFAULT 1
);

CREATE TABLE imported_closed_report_company (
  id INTEGER NOT NULL PRIMARY KEY,
  site_journal_id INTEGER DEFAULT -1,
  pellwick_id INTEGER DEFAULT -1
);

CREATE TABLE deleted_site_journal_defect (
  id INTEGER NOT NULL PRIMARY KEY,
  site_journal_id INTEGER DEFAULT -1,
  number VARCHAR (64),
  imported_report_id INTEGER DEFAULT -1,
  restore_on_import INTEGER DEFAULT 1
);

CREATE TABLE deleted_site_journal_photo_info (
  id INTEGER NOT NULL PRIMARY KEY,
  defect_id INTEGER,
  site_journal_id INTEGER DEFAULT -1,
  restore_on_import INTEGER DEFAULT 1
);

CREATE TABLE deleted_site_journal_company (
  id INTEGER NOT NULL PRIMARY KEY,
  site_journal_id INTEGER DEFAULT -1,
  restore_on_import INTEGER DEFAULT 1
);
